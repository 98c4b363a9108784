#include "xml/TreeBuilder.h"

namespace ostrand {

namespace {

bool IsBlank(const std::string &text) {
    return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

} // namespace

TreeBuilder::TreeBuilder(int depth, int skip) :
    parser_(MakeExpatParser()), node_(document_), wanted_depth_(depth - 1), skip_(skip) {
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), OnStart, OnEnd);
}

bool TreeBuilder::Feed(QByteArrayView bytes) {
    return XML_Parse(parser_.get(), bytes.data(), int(bytes.size()), 0) == XML_STATUS_OK;
}

void XMLCALL TreeBuilder::OnStart(void *data, const XML_Char *name, const XML_Char **attributes) {
    TreeBuilder &self = Of(data);
    const qint64 depth = self.depth_++;
    if (depth < self.wanted_depth_ || self.skip_ > 0 || self.done_) {
        return;
    }
    if (depth == self.wanted_depth_) {
        XML_SetCharacterDataHandler(self.parser_.get(), OnText);
    }
    self.FlushText();
    self.node_ = self.node_.append_child(name);
    for (; *attributes != nullptr; attributes += 2) {
        self.node_.append_attribute(attributes[0]).set_value(attributes[1]);
    }
}

void XMLCALL TreeBuilder::OnEnd(void *data, const XML_Char *) {
    TreeBuilder &self = Of(data);
    const qint64 depth = --self.depth_;
    if (depth < self.wanted_depth_ || self.done_) {
        return;
    }
    if (self.skip_ > 0) {
        self.skip_ -= depth == self.wanted_depth_ ? 1 : 0;
        return;
    }
    self.FlushText();
    self.node_ = self.node_.parent();
    if (depth == self.wanted_depth_) {
        XML_SetCharacterDataHandler(self.parser_.get(), nullptr);
        self.done_ = true;
    }
}

void XMLCALL TreeBuilder::OnText(void *data, const XML_Char *text, int length) {
    Of(data).text_.append(text, std::size_t(length));
}

void TreeBuilder::FlushText() {
    if (!IsBlank(text_)) {
        node_.append_child(pugi::node_pcdata).set_value(text_.c_str());
    }
    text_.clear();
}

} // namespace ostrand
