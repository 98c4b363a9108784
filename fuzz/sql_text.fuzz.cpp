// Any text: the parser and the scan of its shape answer or raise SqlError, and agree on the literals.

#include "../tests/support/SqlLiterals.h"
#include "sql/Parser.h"
#include "sql/Shape.h"
#include "sql/SqlError.h"

#include <cstdio>
#include <cstdlib>

using namespace ostrand::sql;

namespace {

void Require(bool condition, const char *what) {
    if (!condition) {
        std::fprintf(stderr, "violated: %s\n", what);
        std::abort();
    }
}

void CheckAgreement(const ast::Literal &literal, const Shape &shape) {
    if (literal.index < 0) {
        return;
    }
    Require(std::size_t(literal.index) < shape.literals.size(), "every literal of the tree has its token");
    const LiteralToken &token = shape.literals[std::size_t(literal.index)];
    Require(literal.kind == token.kind, "a literal and its token are of one kind");
    Require(literal.number == token.number, "a literal and its token are of one value");
    Require(literal.kind != Kind::Text || literal.text == token.text, "a literal and its token are of one text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    static Shape used; // as a cache uses it, one object for all texts
    const bool scanned = ScanShape(text, used);
    Shape fresh;
    Require(ScanShape(text, fresh) == scanned, "a scan does not depend on what was scanned before");
    Require(fresh.key == used.key, "a key does not depend on what was scanned before");
    try {
        const ast::Statement statement = Parse(text);
        Require(scanned, "what parses has a shape");
        LiteralWalk([&](const ast::Literal &literal) { CheckAgreement(literal, fresh); }).Walk(statement);
    } catch (const SqlError &error) {
        Require(error.Position() >= 0 && error.Position() <= text.size(), "a fault lies in the text");
        Require(!error.Text().isEmpty(), "a fault has a text");
    }
    return 0;
}
