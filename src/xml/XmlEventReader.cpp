#include "xml/XmlEventReader.h"

#include "base/Files.h"
#include "base/Text.h"
#include "xml/ExpatEncoding.h"

#include <QBuffer>
#include <QFile>

#include <expat.h>

#include <memory>
#include <type_traits>

namespace ostrand {

namespace {

/// Large enough that a long attribute value, which the parser scans anew with each piece, costs little.
constexpr qint64 kPiece = 1 << 20;
/// The most characters of a source line on either side of the fault.
constexpr qint64 kSourceSide = 100;

struct ParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserDeleter>;

/// One run of the parser over a device.
class Reading {
public:
    Reading(QIODevice &device, XmlEventHandler &handler);
    XmlResult Run();

private:
    static void XMLCALL OnStart(void *self, const XML_Char *name, const XML_Char **attributes);
    static void XMLCALL OnEnd(void *self, const XML_Char *name);
    static void XMLCALL OnCharacters(void *self, const XML_Char *text, int length);
    static void XMLCALL OnEntity(void *self, const XML_Char *name, int is_parameter, const XML_Char *value, int length,
                                 const XML_Char *base, const XML_Char *system_id, const XML_Char *public_id,
                                 const XML_Char *notation);

    void Start(const XML_Char *name, const XML_Char **attributes);
    void Stop(const QString &reason);
    XmlResult Fault();
    QString SourceAtFault();

    QIODevice &device_;
    XmlEventHandler &handler_;
    Parser parser_;
    std::vector<XmlEventAttribute> attributes_;
    int depth_ = 0;
    int entities_ = 0;
    bool stopped_ = false;
    QString own_reason_;
};

Reading::Reading(QIODevice &device, XmlEventHandler &handler) :
    device_(device), handler_(handler), parser_(XML_ParserCreate(nullptr)) {
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), &OnStart, &OnEnd);
    XML_SetCharacterDataHandler(parser_.get(), &OnCharacters);
    XML_SetEntityDeclHandler(parser_.get(), &OnEntity);
    XML_SetUnknownEncodingHandler(parser_.get(), &UnknownEncodingHandler, nullptr);
}

void XMLCALL Reading::OnStart(void *self, const XML_Char *name, const XML_Char **attributes) {
    static_cast<Reading *>(self)->Start(name, attributes);
}

void XMLCALL Reading::OnEnd(void *self, const XML_Char *name) {
    auto *reading = static_cast<Reading *>(self);
    --reading->depth_;
    // After a stop the parser may still tell the end of an empty element.
    if (!reading->stopped_)
        reading->handler_.EndElement(name);
}

void XMLCALL Reading::OnCharacters(void *self, const XML_Char *text, int length) {
    auto *reading = static_cast<Reading *>(self);
    if (!reading->stopped_)
        reading->handler_.Characters(text, length);
}

void XMLCALL Reading::OnEntity(void *self, const XML_Char *, int, const XML_Char *, int, const XML_Char *,
                               const XML_Char *, const XML_Char *, const XML_Char *) {
    auto *reading = static_cast<Reading *>(self);
    if (++reading->entities_ > kMaxXmlEntities)
        reading->Stop(QStringLiteral("too many entities are declared"));
}

void Reading::Start(const XML_Char *name, const XML_Char **attributes) {
    if (stopped_)
        return;
    if (++depth_ > kMaxXmlDepth) {
        Stop(QStringLiteral("elements are nested too deeply"));
        return;
    }
    attributes_.clear();
    for (const XML_Char **next = attributes; *next != nullptr; next += 2)
        attributes_.push_back({next[0], next[1]});
    handler_.StartElement(name, attributes_);
    QString reason;
    if (handler_.Stopped(&reason))
        Stop(reason);
}

void Reading::Stop(const QString &reason) {
    if (stopped_)
        return;
    stopped_ = true;
    own_reason_ = reason;
    XML_StopParser(parser_.get(), XML_FALSE);
}

XmlResult Reading::Run() {
    for (;;) {
        void *buffer = XML_GetBuffer(parser_.get(), int(kPiece));
        if (buffer == nullptr)
            return Fault();
        const qint64 length = device_.read(static_cast<char *>(buffer), kPiece);
        if (length < 0)
            return {false, device_.errorString(), {}, 0};
        if (XML_ParseBuffer(parser_.get(), int(length), length == 0 ? XML_TRUE : XML_FALSE) != XML_STATUS_OK)
            return Fault();
        if (length == 0)
            return {};
    }
}

XmlResult Reading::Fault() {
    XmlResult result;
    result.ok = false;
    result.reason = stopped_ ? own_reason_ : QString::fromUtf8(XML_ErrorString(XML_GetErrorCode(parser_.get())));
    result.line = qint64(XML_GetCurrentLineNumber(parser_.get()));
    result.source = SourceAtFault();
    return result;
}

/// Decodes a piece of the document. UTF-16 shows in the first bytes of the document.
QString DecodePiece(const QByteArray &piece, const QByteArray &first_bytes) {
    const bool little = first_bytes.startsWith("\xFF\xFE") || first_bytes.startsWith(QByteArray("<\0", 2));
    const bool big = first_bytes.startsWith("\xFE\xFF") || first_bytes.startsWith(QByteArray("\0<", 2));
    if (!little && !big)
        return DecodeUserText(piece);
    QString text(piece.size() / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const auto first = static_cast<unsigned char>(piece[2 * i]);
        const auto second = static_cast<unsigned char>(piece[2 * i + 1]);
        text[i] = QChar(char16_t(little ? second << 8 | first : first << 8 | second));
    }
    return text;
}

/// Reads the surroundings of the fault anew from the device and cuts its line out of them.
QString Reading::SourceAtFault() {
    const qint64 at = XML_GetCurrentByteIndex(parser_.get());
    if (at < 0 || !device_.seek(0))
        return {};
    const QByteArray first_bytes = device_.read(2);
    const qint64 begin = std::max<qint64>(0, at - 2 * kSourceSide) & ~qint64(1);
    if (!device_.seek(begin))
        return {};
    const QByteArray before = device_.read(at - begin);
    const QByteArray behind = device_.read(2 * kSourceSide);
    const auto is_break = [](QChar c) { return c == u'\n' || c == u'\r'; };
    QString left = DecodePiece(before, first_bytes);
    left = left.mid(std::find_if(left.rbegin(), left.rend(), is_break).base() - left.begin());
    QString right = DecodePiece(behind, first_bytes);
    right.truncate(std::find_if(right.begin(), right.end(), is_break) - right.begin());
    return left.right(kSourceSide) + right.left(kSourceSide);
}

} // namespace

XmlResult XmlReadFile(const QString &path, XmlEventHandler &handler) {
    if (IsEndless(path))
        return {false, path + QStringLiteral(" is no file"), {}, 0};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {false, file.errorString(), {}, 0};
    return Reading(file, handler).Run();
}

XmlResult XmlReadBytes(const QByteArray &bytes, XmlEventHandler &handler) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return Reading(buffer, handler).Run();
}

} // namespace ostrand
