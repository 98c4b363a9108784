#include "browser/FindIndex.h"

#include "base/FoldText.h"

#include <bit>

namespace ostrand {

namespace {

constexpr size_t kMostWords = 64;
constexpr int kAnyYear = -1;
constexpr size_t kFirstSlots = 1024;

/// Adds a word unless one that is there holds it; those that it holds itself go.
void AddWord(std::string word, std::vector<std::string> &words) {
    const auto holds = [&word](const std::string &other) { return other.find(word) != std::string::npos; };
    if (word.empty() || std::any_of(words.begin(), words.end(), holds)) {
        return;
    }
    std::erase_if(words, [&word](const std::string &other) { return word.find(other) != std::string::npos; });
    if (words.size() < kMostWords) {
        words.push_back(std::move(word));
    }
}

} // namespace

std::vector<std::string> FindWords(QStringView typed) {
    const std::string folded = FoldText(typed);
    std::vector<std::string> words;
    for (size_t begin = 0; begin < folded.size();) {
        const size_t end = std::min(folded.find(' ', begin), folded.size());
        AddWord(folded.substr(begin, end - begin), words);
        begin = end + 1;
    }
    return words;
}

void FindIndex::AddLink(QStringView alias_name, QStringView common_name, int birth_year) {
    const std::string common = FoldText(common_name);
    const std::string alias = FoldText(alias_name);
    const auto add_spelling = [this](const std::string &name, int group) {
        spellings_.Add(name);
        spelling_groups_.push_back(group);
    };
    const auto [group, is_new] = groups_.try_emplace(common, int(groups_.size()));
    if (is_new) {
        links_[common].push_back({kAnyYear, group->second});
        add_spelling(common, group->second);
    }
    links_[alias].push_back({birth_year, group->second});
    add_spelling(alias, group->second);
}

int FindIndex::AddOwner(const QString &id) {
    const int owner = owners_.value(id, int(owners_.size()));
    owners_.insert(id, owner);
    return owner;
}

void FindIndex::AddTitle(int owner, QStringView title) {
    folded_.clear();
    AppendFolded(title, folded_);
    if (!folded_.empty()) {
        titles_.Add(folded_);
        title_owners_.push_back(owner);
    }
}

void FindIndex::BeginCredits(int owner) {
    blocks_.push_back({owner, std::uint32_t(credits_.size())});
}

void FindIndex::AddPerson(QStringView name, int birth_year) {
    folded_.clear();
    AppendFolded(name, folded_);
    if (2 * size_t(names_.Size()) >= slots_.size()) {
        GrowSlots();
    }
    int &person = slots_[SlotOf(folded_, birth_year)];
    const int block = int(blocks_.size());
    if (person < 0) {
        person = names_.Add(folded_);
        birth_years_.push_back(birth_year);
        last_block_.push_back(0);
        LinkPerson(person, birth_year);
    }
    if (std::exchange(last_block_[size_t(person)], block) != block) {
        credits_.push_back(person);
    }
}

/// As GetCommonName: year 0 finds a link of any year.
void FindIndex::LinkPerson(int person, int birth_year) {
    const auto links = links_.find(folded_);
    if (links == links_.end()) {
        return;
    }
    for (const Link &link : links->second) {
        if (link.birth_year == kAnyYear || birth_year == 0 || link.birth_year == birth_year) {
            memberships_.push_back({person, link.group});
        }
    }
}

/// The slot of a person, or the one where it belongs.
size_t FindIndex::SlotOf(std::string_view name, int birth_year) const {
    const size_t mask = slots_.size() - 1;
    size_t slot = (std::hash<std::string_view>()(name) + size_t(birth_year)) & mask;
    while (slots_[slot] >= 0 && (birth_years_[size_t(slots_[slot])] != birth_year || names_.At(slots_[slot]) != name)) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

void FindIndex::GrowSlots() {
    slots_.assign(std::max(kFirstSlots, slots_.size() * 2), -1);
    for (int person = 0; person < names_.Size(); ++person) {
        slots_[SlotOf(names_.At(person), birth_years_[size_t(person)])] = person;
    }
}

void FindIndex::Finish() {
    groups_ = {};
    links_ = {};
    birth_years_ = {};
    slots_ = {};
    last_block_ = {};
    titles_.Trim();
    names_.Trim();
    spellings_.Trim();
    credits_.shrink_to_fit();
}

std::vector<FindIndex::WordSet> FindIndex::WordsOfOwners(const std::vector<std::string> &words) const {
    std::vector<WordSet> found(owners_.size());
    for (size_t i = 0; i < words.size(); ++i) {
        titles_.ForEachWith(words[i],
                            [&](int title) { found[size_t(title_owners_[size_t(title)])] |= WordSet(1) << i; });
    }
    return found;
}

std::vector<FindIndex::WordSet> FindIndex::WordsOfPersons(const std::vector<std::string> &words) const {
    std::vector<WordSet> found(size_t(names_.Size()));
    std::vector<WordSet> of_groups(
        size_t(spelling_groups_.empty() ? 0 : *std::max_element(spelling_groups_.begin(), spelling_groups_.end()) + 1));
    for (size_t i = 0; i < words.size(); ++i) {
        const WordSet word = WordSet(1) << i;
        names_.ForEachWith(words[i], [&](int person) { found[size_t(person)] |= word; });
        spellings_.ForEachWith(words[i],
                               [&](int spelling) { of_groups[size_t(spelling_groups_[size_t(spelling)])] |= word; });
    }
    for (const Membership &membership : memberships_) {
        found[size_t(membership.person)] |= of_groups[size_t(membership.group)];
    }
    return found;
}

std::vector<bool> FindIndex::Matching(const std::vector<std::string> &words) const {
    std::vector<bool> matching(owners_.size());
    const WordSet all = words.empty() ? 0 : ~WordSet(0) >> (kMostWords - words.size());
    const std::vector<WordSet> of_owners = WordsOfOwners(words);
    const std::vector<WordSet> of_persons = WordsOfPersons(words);
    for (size_t owner = 0; owner < matching.size(); ++owner) {
        matching[owner] = of_owners[owner] == all;
    }
    for (size_t i = 0; i < blocks_.size(); ++i) {
        const auto owner = size_t(blocks_[i].owner);
        if (matching[owner]) {
            continue;
        }
        const WordSet missing = all & ~of_owners[owner];
        const auto first = credits_.begin() + blocks_[i].first;
        const auto last = i + 1 < blocks_.size() ? credits_.begin() + blocks_[i + 1].first : credits_.end();
        matching[owner] =
            std::any_of(first, last, [&](int person) { return (missing & ~of_persons[size_t(person)]) == 0; });
    }
    return matching;
}

size_t FindIndex::Bytes() const {
    const auto of = [](const auto &values) { return values.capacity() * sizeof(values.front()); };
    size_t bytes = titles_.Bytes() + names_.Bytes() + spellings_.Bytes() + of(title_owners_) + of(blocks_) +
                   of(credits_) + of(spelling_groups_) + of(memberships_) + of(birth_years_) + of(slots_) +
                   of(last_block_);
    for (auto owner = owners_.begin(); owner != owners_.end(); ++owner) {
        bytes += sizeof(QString) + sizeof(int) + size_t(owner.key().capacity()) * sizeof(QChar);
    }
    return bytes;
}

} // namespace ostrand
