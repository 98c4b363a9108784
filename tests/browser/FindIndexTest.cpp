#include "browser/FindIndex.h"

#include "browser/BrowserFixture.h"
#include "browser/FindIndexReader.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(FindWords, AreFoldedAndEachTellsSomething) {
    struct Case {
        QStringView typed;
        std::vector<std::string> words;
    };
    const Case cases[] = {
        {u"", {}},
        {u"  \t ", {}},
        {u" ' , ", {}},
        {u"Amber", {"amber"}},
        {u"  ÉLAN  Vital ", {"elan", "vital"}},
        {u"the then", {"then"}},
        {u"then the", {"then"}},
        {u"a ab abc b", {"abc"}},
        {u"dune dune", {"dune"}},
        {u"Marsh, Anna", {"marsh", "anna"}},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(FindWords(row.typed), row.words) << qPrintable(row.typed.toString());
    }
}

TEST(FindWords, BeyondTheLastThatCountsAreLeftOut) {
    QString typed;
    for (int i = 100; i < 200; ++i) {
        typed += QString::number(i) + u' ';
    }
    EXPECT_EQ(FindWords(typed).size(), 64u);
}

/// The ids of the owners that have all words of a typed text.
QStringList Found(const FindIndex &index, const QStringList &ids, QStringView typed) {
    const std::vector<bool> matching = index.Matching(FindWords(typed));
    QStringList found;
    for (const QString &id : ids) {
        const int owner = index.OwnerOf(id);
        if (owner >= 0 && matching[size_t(owner)]) {
            found += id;
        }
    }
    return found;
}

TEST(FindIndex, FindsNothingWhileItIsEmpty) {
    const FindIndex index;
    EXPECT_TRUE(index.Matching({"a"}).empty());
    EXPECT_EQ(index.OwnerOf(u"A"_s), -1);
}

TEST(FindIndex, KeepsEachPersonOnce) {
    FindIndex index;
    for (int i = 0; i < 5000; ++i) {
        index.BeginCredits(index.AddOwner(QString::number(i)));
        index.AddPerson(u"Anna Marsh", 0);
        index.AddPerson(u"ANNA MARSH", 0);
        index.AddPerson(u"Anna Marsh", 1950);
        index.AddPerson(u"Extra %1"_s.arg(i), 0);
    }
    index.Finish();
    EXPECT_EQ(index.PersonCount(), 5002);
    EXPECT_EQ(index.OwnerCount(), 5000);
    const std::vector<bool> marsh = index.Matching({"marsh"});
    EXPECT_EQ(std::count(marsh.begin(), marsh.end(), true), 5000);
    EXPECT_EQ(Found(index, {u"7"_s, u"4321"_s}, u"extra 4321"), QStringList{u"4321"_s});
    EXPECT_LT(index.Bytes(), 1'000'000u);
}

TEST(FindIndex, TellsPersonsOfOneNameApartByTheYearsOfTheirLinks) {
    FindIndex index;
    index.AddLink(u"J. Reed", u"Jane Reed", 1950);
    index.AddLink(u"J. Reed", u"John Reed", 1960);
    const QStringList ids = {u"none"_s, u"y1950"_s, u"y1960"_s, u"y1970"_s};
    const int years[] = {0, 1950, 1960, 1970};
    for (qsizetype i = 0; i < ids.size(); ++i) {
        index.BeginCredits(index.AddOwner(ids[i]));
        index.AddPerson(u"J. Reed", years[i]);
    }
    index.Finish();
    EXPECT_EQ(Found(index, ids, u"jane reed"), (QStringList{u"none"_s, u"y1950"_s}));
    EXPECT_EQ(Found(index, ids, u"john reed"), (QStringList{u"none"_s, u"y1960"_s}));
    EXPECT_EQ(Found(index, ids, u"j. reed"), ids);
}

class FindIndexReaderTest : public BrowserTest {
protected:
    void AddCredit(const QString &id, const QString &name, const QString &role = u"Role"_s) {
        Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('%1', '%2', '%3', %4, True)"_s
                .arg(id, EscapeSql(name), role)
                .arg(++position_));
    }
    FindIndex Read(FindOwners owners) {
        FindIndexReader reader(session, owners);
        while (reader.Step()) {
        }
        return reader.TakeIndex();
    }

private:
    int position_ = 0;
};

TEST_F(FindIndexReaderTest, ReadsTitlesAndPersonsOfProfiles) {
    AddProfile(u"A"_s, u"Title = 'Amber', OriginalTitle = 'Bernstein', CustomTitle = 'Gold'"_s);
    AddProfile(u"b'1"_s.replace(u'\'', u"''"_s), u"Title = 'Birch'"_s);
    AddProfile(u"C"_s, u"Title = 'Cedar'"_s);
    AddCredit(u"A"_s, u"Anna Marsh"_s);
    AddCredit(u"a"_s, u"Otto Fell"_s); // ids do without case
    AddCredit(u"C"_s, u"Chapter One"_s, u"EDiv"_s);
    AddCredit(u"Gone"_s, u"Nobody"_s);
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('A. Marsh', 'Anna Marsh', 0)");
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle, EpisodeOriginalTitle) VALUES ('E1', 'S', 'Arrival', "
        u"'Ankunft')");
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('C', 'E1')");
    const FindIndex index = Read(FindOwners::Profiles);
    const QStringList ids = {u"A"_s, u"b'1"_s, u"C"_s};
    struct Case {
        QStringView typed;
        QStringList found;
    };
    const Case cases[] = {
        {u"amber", {u"A"_s}},      {u"bernstein", {u"A"_s}}, {u"gold", {u"A"_s}},    {u"birch", {u"b'1"_s}},
        {u"anna marsh", {u"A"_s}}, {u"a. marsh", {u"A"_s}},  {u"fell", {u"A"_s}},    {u"chapter", {}},
        {u"nobody", {}},           {u"arrival", {u"C"_s}},   {u"ankunft", {u"C"_s}},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(Found(index, ids, row.typed), row.found) << qPrintable(row.typed.toString());
    }
}

TEST_F(FindIndexReaderTest, ReadsTitlesAndPersonsOfSeries) {
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S1', 'Harbour', 'Hafen')");
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S2', 'Glade', '')");
    for (const char16_t *episode :
         {u"'E1', 'S1', 'Arrival'", u"'E2', 's1', 'Ebb'", u"'E3', 'S2', 'Dawn'", u"'E4', 'S9', 'Lost'"}) {
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle) VALUES (%1)"_s.arg(QString::fromUtf16(episode)));
    }
    for (const char16_t *credit : {u"'E1', 'Anna Marsh', 1", u"'E2', 'Otto Fell', 1", u"'E3', 'Otto Fell', 1"}) {
        Run(u"INSERT INTO TVCastCrew (EpisodeID, Name, Position, IsCast) VALUES (%1, True)"_s.arg(
            QString::fromUtf16(credit)));
    }
    const FindIndex index = Read(FindOwners::Series);
    const QStringList ids = {u"S1"_s, u"S2"_s};
    struct Case {
        QStringView typed;
        QStringList found;
    };
    const Case cases[] = {
        {u"harbour", {u"S1"_s}},
        {u"hafen", {u"S1"_s}},
        {u"ebb", {u"S1"_s}},
        {u"marsh", {u"S1"_s}},
        {u"fell", ids},
        {u"glade fell", {u"S2"_s}},
        {u"harbour otto fell", {u"S1"_s}},
        {u"lost", {}},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(Found(index, ids, row.typed), row.found) << qPrintable(row.typed.toString());
    }
}

TEST_F(FindIndexReaderTest, AnswersFromWhatItHas) {
    AddProfile(u"A"_s, u"Title = 'Amber'"_s);
    AddCredit(u"A"_s, u"Anna Marsh"_s);
    FindIndexReader reader(session, FindOwners::Profiles);
    EXPECT_EQ(reader.Index().OwnerCount(), 0);
    bool title = false;
    bool person = false;
    while (reader.Step()) {
        title |= !Found(reader.Index(), {u"A"_s}, u"amber").isEmpty();
        person |= !Found(reader.Index(), {u"A"_s}, u"marsh").isEmpty();
    }
    EXPECT_TRUE(title);
    EXPECT_FALSE(person);
    EXPECT_FALSE(reader.Step());
    EXPECT_EQ(Found(reader.Index(), {u"A"_s}, u"marsh"), QStringList{u"A"_s});
}

TEST_F(FindIndexReaderTest, ReadsPartsThroughAnIndex) {
    std::vector<QString> statements;
    AddProfile(u"A"_s);
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S1', 'Harbour', '')");
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle) VALUES ('E1', 'S1', 'Arrival')");
    session.Database->SetObserver([&](QStringView statement) {
        if (statement.contains(u">= ")) {
            statements.push_back(statement.toString());
        }
    });
    Read(FindOwners::Profiles);
    Read(FindOwners::Series);
    session.Database->SetObserver({});
    EXPECT_EQ(statements.size(), 5u);
    for (const QString &statement : statements) {
        const QStringList plan = session.Database->QueryPlan(statement);
        EXPECT_TRUE(plan.filter(u"SCAN"_s).isEmpty()) << qPrintable(statement + u'\n' + plan.join(u'\n'));
        EXPECT_TRUE(plan.filter(u"TEMP"_s).isEmpty()) << qPrintable(statement + u'\n' + plan.join(u'\n'));
    }
}

} // namespace
} // namespace ostrand
