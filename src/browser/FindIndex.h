// The titles and persons of a collection in memory, for finding what holds some typed words.
#pragma once

#include "browser/FoldedTexts.h"

#include <QHash>
#include <QString>

#include <unordered_map>
#include <vector>

namespace ostrand {

/// The words of a typed text, folded (base/FoldText.h). A word that is a part of another one is left out, since that
/// one tells more; words beyond the 64th do not count.
std::vector<std::string> FindWords(QStringView typed);

/// Owners are profiles or series. Each has titles and credits; the name of a person is kept once. A person is a name
/// with its birth year, and answers to all spellings that links give to it.
///
/// An index that is still being filled answers from what it has.
class FindIndex {
public:
    /// A link of `Alias`. Links come before the persons.
    void AddLink(QStringView alias_name, QStringView common_name, int birth_year);
    int AddOwner(const QString &id);
    void AddTitle(int owner, QStringView title);
    /// The persons that follow have credits in a work of this owner, which may have several.
    void BeginCredits(int owner);
    void AddPerson(QStringView name, int birth_year);
    /// All is told: what only the filling needs is given back.
    void Finish();

    /// -1 for an id that is not known.
    int OwnerOf(const QString &id) const { return owners_.value(id, -1); }
    int OwnerCount() const { return int(owners_.size()); }
    int PersonCount() const { return names_.Size(); }
    /// By owner, whether it has all words: each of them in one of its titles, and those that no title has together in
    /// one person.
    std::vector<bool> Matching(const std::vector<std::string> &words) const;
    size_t Bytes() const;

private:
    using WordSet = std::uint64_t; ///< a bit for each word
    /// Credits from `first` up to those of the next block.
    struct Block {
        int owner;
        std::uint32_t first;
    };
    struct Link {
        int birth_year; ///< kAnyYear for the common name itself
        int group;
    };
    struct Membership {
        int person;
        int group;
    };

    void LinkPerson(int person, int birth_year);
    size_t SlotOf(std::string_view name, int birth_year) const;
    void GrowSlots();
    std::vector<WordSet> WordsOfOwners(const std::vector<std::string> &words) const;
    std::vector<WordSet> WordsOfPersons(const std::vector<std::string> &words) const;

    QHash<QString, int> owners_;
    FoldedTexts titles_;
    std::vector<int> title_owners_; ///< by number of the title
    FoldedTexts names_;             ///< of the persons
    std::vector<Block> blocks_;
    std::vector<int> credits_; ///< persons

    // Names that links lead to one common name are a group.
    FoldedTexts spellings_;
    std::vector<int> spelling_groups_;
    std::vector<Membership> memberships_;

    // While it is filled.
    std::unordered_map<std::string, int> groups_; ///< by common name
    std::unordered_map<std::string, std::vector<Link>> links_;
    std::vector<int> birth_years_; ///< by person
    std::vector<int> slots_;       ///< persons by the hash of their names; -1 for none
    std::vector<int> last_block_;  ///< by person, the last block that has it
    std::string folded_;
};

} // namespace ostrand
