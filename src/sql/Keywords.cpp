#include "sql/Keywords.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ostrand::sql {

namespace {

struct Entry {
    std::string_view word;
    Keyword keyword;
};

constexpr auto kKeywords = std::to_array<Entry>({
    {"action", Keyword::Action},
    {"add", Keyword::Add},
    {"all", Keyword::All},
    {"alter", Keyword::Alter},
    {"and", Keyword::And},
    {"any", Keyword::Any},
    {"as", Keyword::As},
    {"asc", Keyword::Asc},
    {"between", Keyword::Between},
    {"by", Keyword::By},
    {"cascade", Keyword::Cascade},
    {"column", Keyword::Column},
    {"comp", Keyword::Comp},
    {"compression", Keyword::Compression},
    {"constraint", Keyword::Constraint},
    {"create", Keyword::Create},
    {"default", Keyword::Default},
    {"delete", Keyword::Delete},
    {"desc", Keyword::Desc},
    {"disallow", Keyword::Disallow},
    {"distinct", Keyword::Distinct},
    {"distinctrow", Keyword::DistinctRow},
    {"drop", Keyword::Drop},
    {"eqv", Keyword::Eqv},
    {"exists", Keyword::Exists},
    {"false", Keyword::False},
    {"foreign", Keyword::Foreign},
    {"from", Keyword::From},
    {"group", Keyword::Group},
    {"having", Keyword::Having},
    {"ignore", Keyword::Ignore},
    {"imp", Keyword::Imp},
    {"in", Keyword::In},
    {"index", Keyword::Index},
    {"inner", Keyword::Inner},
    {"insert", Keyword::Insert},
    {"into", Keyword::Into},
    {"is", Keyword::Is},
    {"join", Keyword::Join},
    {"key", Keyword::Key},
    {"left", Keyword::Left},
    {"like", Keyword::Like},
    {"mod", Keyword::Mod},
    {"no", Keyword::No},
    {"not", Keyword::Not},
    {"null", Keyword::Null},
    {"off", Keyword::Off},
    {"on", Keyword::On},
    {"option", Keyword::Option},
    {"or", Keyword::Or},
    {"order", Keyword::Order},
    {"outer", Keyword::Outer},
    {"owneraccess", Keyword::OwnerAccess},
    {"parameters", Keyword::Parameters},
    {"percent", Keyword::Percent},
    {"pivot", Keyword::Pivot},
    {"primary", Keyword::Primary},
    {"references", Keyword::References},
    {"right", Keyword::Right},
    {"select", Keyword::Select},
    {"set", Keyword::Set},
    {"some", Keyword::Some},
    {"table", Keyword::Table},
    {"top", Keyword::Top},
    {"transform", Keyword::Transform},
    {"true", Keyword::True},
    {"union", Keyword::Union},
    {"unique", Keyword::Unique},
    {"update", Keyword::Update},
    {"values", Keyword::Values},
    {"where", Keyword::Where},
    {"with", Keyword::With},
    {"xor", Keyword::Xor},
    {"yes", Keyword::Yes},
});

constexpr bool InOrder() {
    return std::ranges::is_sorted(kKeywords, {}, &Entry::word);
}
static_assert(InOrder());

constexpr std::size_t kLongestKeyword =
    std::ranges::max(kKeywords, {}, [](const Entry &entry) { return entry.word.size(); }).word.size();

} // namespace

Keyword FindKeyword(QStringView word) {
    std::array<char, kLongestKeyword> folded;
    if (word.size() > qsizetype(folded.size())) {
        return Keyword::None;
    }
    std::size_t length = 0;
    for (const QChar c : word) {
        if (c.unicode() >= 128) {
            return Keyword::None;
        }
        const char narrow = char(c.unicode());
        folded[length++] = narrow >= 'A' && narrow <= 'Z' ? char(narrow + ('a' - 'A')) : narrow;
    }
    const std::string_view key(folded.data(), length);
    const auto found = std::ranges::lower_bound(kKeywords, key, {}, &Entry::word);
    return found != kKeywords.end() && found->word == key ? found->keyword : Keyword::None;
}

bool IsReserved(Keyword keyword) {
    switch (keyword) {
    case Keyword::All:
    case Keyword::Alter:
    case Keyword::And:
    case Keyword::As:
    case Keyword::Between:
    case Keyword::By:
    case Keyword::Create:
    case Keyword::Delete:
    case Keyword::Distinct:
    case Keyword::DistinctRow:
    case Keyword::Drop:
    case Keyword::Eqv:
    case Keyword::From:
    case Keyword::Group:
    case Keyword::Having:
    case Keyword::Imp:
    case Keyword::In:
    case Keyword::Inner:
    case Keyword::Insert:
    case Keyword::Into:
    case Keyword::Is:
    case Keyword::Join:
    case Keyword::Like:
    case Keyword::Mod:
    case Keyword::Not:
    case Keyword::Null:
    case Keyword::On:
    case Keyword::Or:
    case Keyword::Order:
    case Keyword::Pivot:
    case Keyword::Select:
    case Keyword::Set:
    case Keyword::Table:
    case Keyword::Transform:
    case Keyword::Union:
    case Keyword::Update:
    case Keyword::Values:
    case Keyword::Where:
    case Keyword::Xor:
        return true;
    default:
        return false;
    }
}

} // namespace ostrand::sql
