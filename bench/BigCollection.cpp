#include "BigCollection.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <QCoreApplication>

#include <algorithm>

namespace ostrand::bench {

namespace {

using namespace Qt::StringLiterals;

/// Spreads numbers without a pattern that an index could profit from, the same ones each time.
quint64 Scatter(quint64 number) {
    number = (number ^ number >> 30) * 0xbf58476d1ce4e5b9U;
    number = (number ^ number >> 27) * 0x94d049bb133111ebU;
    return number ^ number >> 31;
}

class Writer {
public:
    Writer(const BigCollection &size, sql::Database &database) : size_(size), database_(database) {}

    void AddProfile(int profile) {
        id_ = BigCollection::ProfileID(profile);
        place_ = int(Scatter(quint64(profile)) % quint64(size_.profiles));
        AddTitle(profile);
        AddLists();
        AddTags();
        const int boxsets = size_.profiles / 10;
        if (profile >= boxsets && profile < boxsets * (1 + BigCollection::kChildren)) {
            Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('%1', '%2')"_s.arg(
                id_, BigCollection::ProfileID((profile - boxsets) / BigCollection::kChildren)));
        }
        AddCredits(profile);
    }

private:
    void Run(const QString &statement) { database_.Execute(statement); }

    void AddTitle(int profile) {
        const QString name =
            u"%1%2 Mill %3"_s.arg(QChar(u'A' + place_ % 26)).arg(QChar(u'a' + place_ / 26 % 26)).arg(place_);
        const auto pick = [&](std::initializer_list<const char16_t *> texts) {
            return QString::fromUtf16(texts.begin()[size_t(place_) % texts.size()]);
        };
        Run(u"INSERT INTO Profiles (ProfileID, Title, SortTitle, OriginalTitle, Description, ColNo, ColType, ProdYear, "
            "Released, Runtime, Locality, Rating, Medium, CaseType, Overview) VALUES ('%1', 'The %2', '%2, The', '%3', "
            "'%4', '%5', '%6', '%7', '200%8-05-14', 101, 'Land %8', '%9', "_s.arg(id_, name)
                .arg(profile % 5 == 0 ? u"Die "_s + name : QString(), profile % 3 == 0 ? u"Special"_s : QString())
                .arg(profile)
                .arg(place_ % 7 == 0 ? u"Ordered"_s : u"Owned"_s)
                .arg(1930 + place_ % 90)
                .arg(place_ % 10)
                .arg(pick({u"G", u"PG", u"R", u"", u"NR"})) +
            u"'%1', '%2', '%3')"_s.arg(
                pick({u"DVD", u"Disc", u"Film"}), pick({u"Slim", u"Box", u"Keep", u"Snap"}),
                u"A miller looks for the wheel that he lost, and finds another one. "_s.repeated(8)));
        Run(u"INSERT INTO PurchaseInfo (ProfileID, PurchaseDate) VALUES ('%1', '201%2-03-01')"_s.arg(id_).arg(profile %
                                                                                                              10));
    }

    void AddLists() {
        for (const int genre : {place_ % BigCollection::kGenres, (place_ + 7) % BigCollection::kGenres}) {
            Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('%1', 'Genre %2')"_s.arg(id_).arg(genre));
        }
        for (int i = 0; i < 3; ++i) {
            Run(u"INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('%1', %2, "
                "'Language %3', 'Packed', 'Stereo')"_s.arg(id_)
                    .arg(i)
                    .arg((place_ + i * 5) % 12));
            Run(u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('%1', 'Language %2')"_s.arg(id_).arg(
                (place_ + i) % 12));
            Run(u"INSERT INTO Features (ProfileID, Feature) VALUES ('%1', 'Feature %2')"_s.arg(id_).arg((place_ + i) %
                                                                                                        9));
        }
        for (const char16_t *type : {u"Production", u"Media"}) {
            Run(u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('%1', 'Studio %2', '%3')"_s.arg(id_)
                    .arg(place_ % 300)
                    .arg(QString::fromUtf16(type)));
        }
        Run(u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('%1', 1, 'Main Feature')"_s.arg(id_));
    }

    /// Each title has three tags of three groups.
    void AddTags() {
        for (int i = 0; i < 3; ++i) {
            const int group = (place_ + i * 3) % BigCollection::kTagGroups;
            const int tag = place_ / BigCollection::kTagGroups % BigCollection::kTagsOfGroup;
            const QString name = BigCollection::Tag(group, tag);
            Run(u"INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('%1', '%2', '%2')"_s.arg(id_,
                                                                                                             name));
        }
    }

    /// As many for each title, but that some have four times as many as others.
    void AddCredits(int profile) {
        const int mean = size_.credits / size_.profiles;
        const int credits = profile % 2 == 0 ? mean * 8 / 5 : mean - mean * 3 / 5;
        static constexpr const char16_t *kRoles[] = {u"Director", u"Writer", u"Producer", u"Composer", u"Editor"};
        for (int i = 0; i < credits; ++i) {
            const bool cast = i % 3 != 2;
            Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES ('%1', '%2', '%3', "
                "%4, %5, 0)"_s
                    .arg(id_, BigCollection::PersonName(NextPerson()),
                         cast ? u"Role %1"_s.arg(i) : QString::fromUtf16(kRoles[i % 5]))
                    .arg(i)
                    .arg(cast ? u"true"_s : u"false"_s));
        }
    }

    /// Few people have many credits, and many have one or two.
    int NextPerson() {
        const double share = double(Scatter(++drawn_) % 1'000'000) / 1'000'000;
        return std::min(int(share * share * share * size_.People()), size_.People() - 1);
    }

    const BigCollection &size_;
    sql::Database &database_;
    QString id_;
    int place_ = 0;
    quint64 drawn_ = 0;
};

} // namespace

QString BigCollection::ProfileID(int profile) {
    return u"Key_%1.%2"_s.arg(4'000'000'000'000LL + profile * 7919LL).arg(profile % 20);
}

QString BigCollection::PersonName(int person) {
    const quint64 spread = Scatter(quint64(person));
    return u"%1ira %2orm%3"_s.arg(QChar(u'A' + int(spread % 26))).arg(QChar(u'A' + int(spread / 26 % 26))).arg(person);
}

QString BigCollection::Tag(int group, int tag) {
    return u"Group %1/Tag %2"_s.arg(group).arg(tag);
}

void BigCollection::Create(Session &session, const QString &path) const {
    CreateCollectionDatabase(session, path);
    const sql::Database::Bracket bracket(*session.Database);
    Writer writer(*this, *session.Database);
    for (int i = 0; i < profiles; ++i) {
        writer.AddProfile(i);
    }
}

BigCollection BigCollection::OfArguments() {
    const QStringList arguments = QCoreApplication::arguments();
    BigCollection collection;
    if (arguments.size() > 1) {
        collection.profiles = std::max(arguments[1].toInt(), 100);
    }
    if (arguments.size() > 2) {
        collection.credits = std::max(arguments[2].toInt(), collection.profiles);
    }
    return collection;
}

} // namespace ostrand::bench
