#include "xml/PlainElement.h"

#include <memory>

namespace ostrand {

namespace {

struct PugiDeleter {
    void operator()(char *memory) const { pugi::get_memory_deallocation_function()(memory); }
};

/// Memory that a document can take over.
using PugiBuffer = std::unique_ptr<char, PugiDeleter>;

constexpr std::size_t kMostBytes = 3; // of a character of an 8-bit code page in UTF-8

/// Writes text as UTF-8 into memory that is large enough.
class Utf8Writer {
public:
    explicit Utf8Writer(char *begin) : begin_(begin), at_(begin) {}

    void PutByte(char byte) { *at_++ = byte; }
    void PutCharacter(char16_t c) {
        if (c < 0x80) {
            PutByte(char(c));
        } else if (c < 0x800) {
            PutByte(char(0xC0 | c >> 6));
            PutByte(char(0x80 | (c & 0x3F)));
        } else {
            PutByte(char(0xE0 | c >> 12));
            PutByte(char(0x80 | (c >> 6 & 0x3F)));
            PutByte(char(0x80 | (c & 0x3F)));
        }
    }
    std::size_t Size() const { return std::size_t(at_ - begin_); }

private:
    char *begin_;
    char *at_;
};

/// The size of the text; nothing where the markup is not plain.
std::optional<std::size_t> WritePlain(QByteArrayView markup, const MarkupEncoding &encoding, char *target) {
    const bool bytes = encoding.form == MarkupEncoding::Form::Bytes;
    Utf8Writer writer(target);
    char before = 0;
    for (const char c : markup) {
        if ((before == '<' && (c == '!' || c == '?')) || (before == '&' && c == '#')) {
            return std::nullopt;
        }
        before = c;
        if (std::uint8_t(c) < 0x80 || !bytes) {
            writer.PutByte(c);
        } else {
            writer.PutCharacter(encoding.character[std::uint8_t(c)]);
        }
    }
    return writer.Size();
}

} // namespace

std::optional<pugi::xml_document> ReadPlainElement(QByteArrayView markup, const MarkupEncoding &encoding) {
    const bool bytes = encoding.form == MarkupEncoding::Form::Bytes;
    if (markup.isEmpty() || (!bytes && encoding.form != MarkupEncoding::Form::Utf8)) {
        return std::nullopt;
    }
    const std::size_t room = std::size_t(markup.size()) * (bytes ? kMostBytes : 1);
    PugiBuffer buffer(static_cast<char *>(pugi::get_memory_allocation_function()(room)));
    if (!buffer) {
        return std::nullopt;
    }
    const std::optional<std::size_t> size = WritePlain(markup, encoding, buffer.get());
    if (!size) {
        return std::nullopt;
    }
    std::optional<pugi::xml_document> document(std::in_place);
    // The document owns the memory whatever the outcome.
    const bool sound =
        document->load_buffer_inplace_own(buffer.release(), *size, pugi::parse_default, pugi::encoding_utf8);
    return sound ? std::move(document) : std::nullopt;
}

} // namespace ostrand
