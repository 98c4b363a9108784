#include "xml/ElementScanner.h"

#include "xml/ExpatParser.h"
#include "xml/PlainElement.h"
#include "xml/TreeBuilder.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr int kSmallestBlock = 1 << 20;
constexpr int kBiggestBlock = 1 << 26;
constexpr qint64 kBytesBetweenTurns = 1 << 24;
constexpr qint64 kLongestProlog = 1 << 20;
constexpr std::size_t kLongestText = 1000;
constexpr qint64 kLongestSource = 200;

MarkupEncoding EncodingOfStart(QByteArrayView start) {
    MarkupEncoding encoding;
    if (start.startsWith("\xFF\xFE") || start.startsWith(QByteArrayView("<\0", 2))) {
        encoding.form = MarkupEncoding::Form::Utf16LittleEndian;
    } else if (start.startsWith("\xFE\xFF") || start.startsWith(QByteArrayView("\0<", 2))) {
        encoding.form = MarkupEncoding::Form::Utf16BigEndian;
    }
    return encoding;
}

} // namespace

QString ScannedElement::DigestText() const {
    return QString::fromLatin1(QByteArray(digest.data(), qsizetype(digest.size())).toHex());
}

/// The first pass: one parser over the whole file.
class ElementScanner::Pass {
public:
    Pass(ElementScanner &scanner) : scanner_(scanner), parser_(MakeExpatParser()), digest_(encoding_) {
        XML_SetUserData(parser_.get(), this);
        XML_SetElementHandler(parser_.get(), OnStart, OnEnd);
        XML_SetXmlDeclHandler(parser_.get(), OnDeclaration);
        XML_SetStartDoctypeDeclHandler(parser_.get(), OnDoctype);
        XML_SetEntityDeclHandler(parser_.get(), OnEntity);
        XML_SetUnknownEncodingHandler(parser_.get(), OnUnknownEncoding, this);
    }

    XmlResult Run(const std::function<bool()> &between);

private:
    static Pass &Of(void *data) { return *static_cast<Pass *>(data); }
    static void XMLCALL OnStart(void *data, const XML_Char *name, const XML_Char **) { Of(data).Start(name); }
    static void XMLCALL OnEnd(void *data, const XML_Char *) { Of(data).End(); }
    static void XMLCALL OnText(void *data, const XML_Char *text, int length);
    static void XMLCALL OnDeclaration(void *data, const XML_Char *, const XML_Char *encoding, int);
    static void XMLCALL OnDoctype(void *data, const XML_Char *, const XML_Char *, const XML_Char *, int) {
        Of(data).has_doctype_ = true;
    }
    static void XMLCALL OnEntity(void *data, const XML_Char *, int, const XML_Char *, int, const XML_Char *,
                                 const XML_Char *, const XML_Char *, const XML_Char *);
    static int XMLCALL OnUnknownEncoding(void *data, const XML_Char *name, XML_Encoding *encoding);

    void Start(const XML_Char *name);
    void End();
    void StartRoot(const XML_Char *name);
    void StartElement();
    void StartChild(const XML_Char *name);
    void EndElement();
    void Stop(const QString &reason);
    qint64 Here() const { return XML_GetCurrentByteIndex(parser_.get()); }
    qint64 BehindHere() const { return Here() + XML_GetCurrentByteCount(parser_.get()); }
    /// Bytes of the file, from the present block where they lie in it.
    void AddToDigest(qint64 from, qint64 to);
    QByteArray Bytes(qint64 from, qint64 to);
    XmlResult Fault();
    QString SourceAt(qint64 offset);

    ElementScanner &scanner_;
    ExpatParser parser_;
    MarkupEncoding encoding_;
    MarkupDigest digest_;
    QByteArray block_;
    qint64 block_start_ = 0;
    qint64 declaration_end_ = 0;
    qint64 depth_ = 0;
    int entities_ = 0;
    bool has_doctype_ = false;
    bool in_element_ = false;
    bool seen_text_ = false;
    bool in_text_ = false;
    ScannedElement element_;
    QString own_reason_;
};

XmlResult ElementScanner::Pass::Run(const std::function<bool()> &between) {
    QFile &file = scanner_.file_;
    int block_size = kSmallestBlock;
    qint64 turn_due = kBytesBetweenTurns;
    qint64 last_place = -1;
    for (bool last = false; !last;) {
        block_start_ += block_.size();
        file.seek(block_start_);
        block_.resize(block_size);
        const qint64 count = file.read(block_.data(), block_size);
        if (count < 0) {
            return {false, file.errorString(), {}, 0};
        }
        block_.truncate(count);
        last = count == 0;
        if (block_start_ == 0) {
            encoding_ = EncodingOfStart(block_);
        }
        if (XML_Parse(parser_.get(), block_.constData(), int(count), last) != XML_STATUS_OK) {
            return Fault();
        }
        // A token that is longer than a block is scanned anew with each block, so blocks grow with it.
        const qint64 place = Here();
        block_size = place == last_place ? std::min(block_size * 2, kBiggestBlock) : kSmallestBlock;
        last_place = place;
        if (between && block_start_ + count >= turn_due) {
            turn_due += kBytesBetweenTurns;
            if (!between()) {
                return {false, {}, {}, 0};
            }
        }
    }
    return {};
}

void XMLCALL ElementScanner::Pass::OnText(void *data, const XML_Char *text, int length) {
    std::string &value = Of(data).element_.text;
    if (value.size() <= kLongestText) {
        value.append(text, std::size_t(length));
    }
}

void XMLCALL ElementScanner::Pass::OnDeclaration(void *data, const XML_Char *, const XML_Char *encoding, int) {
    Pass &self = Of(data);
    self.declaration_end_ = self.BehindHere();
    const QByteArray name = QByteArray(encoding).toLower();
    if (name == "iso-8859-1" || name == "us-ascii") {
        self.encoding_ = MarkupEncoding::Latin1();
    }
}

void XMLCALL ElementScanner::Pass::OnEntity(void *data, const XML_Char *, int, const XML_Char *, int, const XML_Char *,
                                            const XML_Char *, const XML_Char *, const XML_Char *) {
    if (++Of(data).entities_ > kMaxXmlEntities) {
        Of(data).Stop(u"too many entities are declared"_s);
    }
}

int XMLCALL ElementScanner::Pass::OnUnknownEncoding(void *data, const XML_Char *name, XML_Encoding *encoding) {
    const int status = UnknownEncodingHandler(nullptr, name, encoding);
    if (status == XML_STATUS_OK) {
        MarkupEncoding &markup = Of(data).encoding_;
        markup.form = MarkupEncoding::Form::Bytes;
        for (std::size_t i = 0; i < markup.low_byte.size(); ++i) {
            markup.low_byte[i] = char(encoding->map[i] & 0xFF);
            markup.character[i] = char16_t(encoding->map[i]);
        }
    }
    return status;
}

void ElementScanner::Pass::Start(const XML_Char *name) {
    const qint64 depth = depth_++;
    if (depth >= kMaxXmlDepth) {
        Stop(u"elements are nested too deeply"_s);
    } else if (depth == 0) {
        StartRoot(name);
    } else if (depth == 1) {
        in_element_ = scanner_.query_.element == name;
        if (in_element_) {
            StartElement();
        }
    } else if (depth == 2 && in_element_) {
        StartChild(name);
    }
}

void ElementScanner::Pass::End() {
    --depth_;
    if (depth_ == 2 && in_text_) {
        in_text_ = false;
        XML_SetCharacterDataHandler(parser_.get(), nullptr);
    } else if (depth_ == 1 && in_element_) {
        in_element_ = false;
        EndElement();
    }
}

void ElementScanner::Pass::StartRoot(const XML_Char *name) {
    if (scanner_.query_.root != name) {
        Stop(u"the root element is \""_s + QString::fromUtf8(name) + u"\""_s);
        return;
    }
    const qint64 from = has_doctype_ ? 0 : Here();
    if (BehindHere() - from > kLongestProlog) {
        Stop(u"the document type declaration is too long"_s);
        return;
    }
    scanner_.encoding_ = encoding_;
    scanner_.own_entities_ = has_doctype_;
    scanner_.prolog_ = (has_doctype_ ? QByteArray() : Bytes(0, declaration_end_)) + Bytes(from, BehindHere());
}

void ElementScanner::Pass::StartElement() {
    const qint64 offset = Here();
    const bool same_place = !scanner_.elements_.empty() && scanner_.elements_.back().offset == offset;
    element_ = {};
    element_.offset = offset;
    element_.line = qint32(XML_GetCurrentLineNumber(parser_.get()));
    element_.copy = same_place ? scanner_.elements_.back().copy + 1 : 0;
    seen_text_ = false;
}

void ElementScanner::Pass::StartChild(const XML_Char *name) {
    if (!seen_text_ && scanner_.query_.text_child == name) {
        seen_text_ = true;
        in_text_ = true;
        XML_SetCharacterDataHandler(parser_.get(), OnText);
    } else if (scanner_.query_.marked_child == name) {
        element_.marked = true;
    }
}

void ElementScanner::Pass::EndElement() {
    const qint64 end = BehindHere();
    element_.length = end - element_.offset;
    if (element_.text.size() > kLongestText) {
        element_.text.clear();
    }
    digest_.Reset();
    AddToDigest(element_.offset, end);
    element_.digest = digest_.Result();
    scanner_.elements_.push_back(std::move(element_));
}

void ElementScanner::Pass::Stop(const QString &reason) {
    if (!own_reason_.isEmpty()) {
        return;
    }
    own_reason_ = reason;
    XML_StopParser(parser_.get(), XML_FALSE);
}

void ElementScanner::Pass::AddToDigest(qint64 from, qint64 to) {
    while (from < block_start_ && from < to) {
        const QByteArray piece = Bytes(from, std::min({to, block_start_, from + kSmallestBlock}));
        if (piece.isEmpty()) {
            return;
        }
        digest_.Add(piece);
        from += piece.size();
    }
    if (from < to) {
        digest_.Add(QByteArrayView(block_).sliced(from - block_start_, to - from));
    }
}

QByteArray ElementScanner::Pass::Bytes(qint64 from, qint64 to) {
    scanner_.file_.seek(from);
    return scanner_.file_.read(to - from);
}

XmlResult ElementScanner::Pass::Fault() {
    const XML_Parser parser = parser_.get();
    return {false, own_reason_.isEmpty() ? QString::fromUtf8(XML_ErrorString(XML_GetErrorCode(parser))) : own_reason_,
            SourceAt(Here()), qint64(XML_GetCurrentLineNumber(parser))};
}

QString ElementScanner::Pass::SourceAt(qint64 offset) {
    const qint64 from = std::max<qint64>(0, offset - kLongestSource / 2);
    const QByteArray around = Bytes(from, offset + kLongestSource / 2);
    qsizetype start = 0;
    if (offset > from) {
        start = around.lastIndexOf('\n', std::min<qsizetype>(offset - from, around.size()) - 1) + 1;
    }
    qsizetype end = around.indexOf('\n', start);
    end = end < 0 ? around.size() : end;
    const QByteArray line = around.sliced(start, end - start).trimmed();
    return encoding_.form == MarkupEncoding::Form::Bytes ? QString::fromLatin1(line) : QString::fromUtf8(line);
}

ElementScanner::ElementScanner(const QString &path, ScanQuery query) : file_(path), query_(std::move(query)) {}

XmlResult ElementScanner::Scan(const std::function<bool()> &between) {
    elements_.clear();
    if (!file_.isOpen() && !file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {false, file_.errorString(), {}, 0};
    }
    return Pass(*this).Run(between);
}

std::optional<pugi::xml_document> ElementScanner::Read(const ScannedElement &element) {
    std::optional<pugi::xml_document> document = ReadPlain(element);
    if (!document) {
        document = ReadAny(element);
    }
    const bool wanted = document && query_.element == document->document_element().name();
    return wanted ? std::move(document) : std::nullopt;
}

std::optional<pugi::xml_document> ElementScanner::ReadPlain(const ScannedElement &element) {
    if (own_entities_ || element.copy > 0 || element.length > kSmallestBlock) {
        return std::nullopt;
    }
    file_.seek(element.offset);
    const QByteArray markup = file_.read(element.length);
    return markup.size() == element.length ? ReadPlainElement(markup, encoding_) : std::nullopt;
}

std::optional<pugi::xml_document> ElementScanner::ReadAny(const ScannedElement &element) {
    TreeBuilder builder(2, element.copy);
    bool sound = builder.Feed(prolog_);
    file_.seek(element.offset);
    for (qint64 left = element.length; left > 0 && sound;) {
        const QByteArray block = file_.read(std::min<qint64>(left, kSmallestBlock));
        left -= block.size();
        sound = !block.isEmpty() && builder.Feed(block);
    }
    pugi::xml_document &document = builder.Document();
    const bool wanted = sound && builder.IsDone() && query_.element == document.document_element().name();
    return wanted ? std::optional<pugi::xml_document>(std::move(document)) : std::nullopt;
}

} // namespace ostrand
