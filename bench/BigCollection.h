// A collection of the size that a great collector has, the same one each time.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

} // namespace ostrand

namespace ostrand::bench {

struct BigCollection {
    int profiles = 10'000;
    /// Credits of all profiles together, a third of them of the crew.
    int credits = 800'000;

    /// Of the size that the command line names: profiles, then credits.
    static BigCollection OfArguments();

    /// Makes the database file, opens it in the session and fills it: titles, purchases, genres, studios, audio
    /// tracks, subtitles, features, discs, tags, overviews and credits. A tenth of the titles are boxsets with four
    /// children each. Throws SqlError.
    void Create(Session &session, const QString &path) const;

    static constexpr int kGenres = 20;
    static constexpr int kTagGroups = 8;
    static constexpr int kTagsOfGroup = 6;
    static constexpr int kChildren = 4;

    /// The key of a profile, counted from 0.
    static QString ProfileID(int profile);
    /// The name of a person as the credits hold it. Of the people, the first ones have the most credits.
    static QString PersonName(int person);
    /// The tag of a group, both counted from 0: "Group 1/Tag 2".
    static QString Tag(int group, int tag);
    /// How many people the credits name.
    int People() const { return credits / 8; }
};

} // namespace ostrand::bench
