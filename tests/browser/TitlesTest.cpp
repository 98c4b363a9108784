#include "browser/Titles.h"

#include "browser/BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// Titles as letters: T title, O original, C custom; with an S in front their sort titles; D the description.
struct Case {
    const char *name;
    QStringView columns;
    bool custom;
    bool original;
    QStringView title;
    QStringView sort_title;
};

constexpr QStringView kAll =
    u"Title = 'T', OriginalTitle = 'O', CustomTitle = 'C', SortTitle = 'ST', OriginalSortTitle = "
    u"'SO', CustomSortTitle = 'SC'";
constexpr QStringView kTitlesOnly = u"Title = 'T', OriginalTitle = 'O', CustomTitle = 'C', SortTitle = Null";
constexpr QStringView kNoCustom = u"Title = 'T', OriginalTitle = 'O', SortTitle = 'ST', OriginalSortTitle = 'SO'";
constexpr QStringView kTitleOnly = u"Title = 'T', SortTitle = 'ST'";
constexpr QStringView kOriginalOnly = u"Title = '', OriginalTitle = 'O', SortTitle = '', OriginalSortTitle = 'SO'";
constexpr QStringView kOnlyOriginalSort = u"Title = '', SortTitle = '', OriginalSortTitle = 'SO'";

const Case kCases[] = {
    {"plain", kAll, false, false, u"T", u"ST"},
    {"original", kAll, false, true, u"O", u"SO"},
    {"custom", kAll, true, false, u"C", u"SC"},
    {"custom before original", kAll, true, true, u"C", u"SC"},
    {"no sort titles: plain", kTitlesOnly, false, false, u"T", u"T"},
    {"no sort titles: original", kTitlesOnly, false, true, u"O", u"O"},
    {"no sort titles: custom", kTitlesOnly, true, true, u"C", u"C"},
    {"no custom title: plain", kNoCustom, true, false, u"T", u"ST"},
    {"no custom title: original", kNoCustom, true, true, u"O", u"SO"},
    {"title only: original", kTitleOnly, false, true, u"T", u"ST"},
    {"title only: custom", kTitleOnly, true, false, u"T", u"ST"},
    {"original only: plain", kOriginalOnly, false, false, u"O", u"SO"},
    {"original sort title as the last resort", kOnlyOriginalSort, false, false, u"", u"SO"},
};

class TitlesTest : public BrowserTest {
protected:
    sql::Recordset Profile(const QString &fields = u"*"_s) {
        return session.Database->OpenRecordset(u"SELECT %1 FROM Profiles WHERE ProfileID = 'P'"_s.arg(fields));
    }
    QString Text(const sql::Recordset &record, bool ignore_custom = false, bool with_description = true) {
        return GetTitle(session.view, record, ignore_custom, with_description);
    }
};

TEST_F(TitlesTest, SwitchesPickTheTitle) {
    for (const Case &row : kCases) {
        SCOPED_TRACE(row.name);
        Run(u"DELETE FROM Profiles");
        AddProfile(u"P"_s, row.columns.toString());
        session.view.mUseCustomTitle = row.custom;
        session.view.mUseOriginalTitle = row.original;
        const sql::Recordset record = Profile();
        EXPECT_EQ(GetTitle(session.view, record, false, false), row.title.toString());
        EXPECT_EQ(GetSortTitle(session.view, record, false), row.sort_title.toString());
    }
}

TEST_F(TitlesTest, CustomTitleCanBeIgnored) {
    AddProfile(u"P"_s, kAll.toString());
    session.view.mUseCustomTitle = true;
    const sql::Recordset record = Profile();
    EXPECT_EQ(GetTitle(session.view, record, true, false), u"T"_s);
    EXPECT_EQ(GetSortTitle(session.view, record, true), u"ST"_s);
    session.view.mUseOriginalTitle = true;
    EXPECT_EQ(GetTitle(session.view, record, true, false), u"O"_s);
    EXPECT_EQ(GetSortTitle(session.view, record, true), u"SO"_s);
}

TEST_F(TitlesTest, DescriptionFollowsInTheFormat) {
    const std::pair<int, QString> formats[] = {
        {1, u"T: D"_s}, {2, u"T - D"_s}, {3, u"T (D)"_s}, {0, u"T"_s}, {4, u"T"_s}, {-1, u"T"_s},
    };
    AddProfile(u"P"_s, u"Title = 'T', Description = 'D'"_s);
    session.view.mShowDescription = true;
    for (const auto &[format, title] : formats) {
        session.view.DescFormat = format;
        EXPECT_EQ(Text(Profile()), title) << format;
        EXPECT_EQ(Text(Profile(), false, false), u"T"_s) << format;
    }
    session.view.DescFormat = 1;
    session.view.mShowDescription = false;
    EXPECT_EQ(Text(Profile()), u"T"_s);
    session.view.mShowDescription = true;
    Run(u"UPDATE Profiles SET Description = ''");
    EXPECT_EQ(Text(Profile()), u"T"_s);
    Run(u"UPDATE Profiles SET Description = Null");
    EXPECT_EQ(Text(Profile()), u"T"_s);
}

TEST_F(TitlesTest, SortTitleOfARecordWithoutAnyTitleFails) {
    AddProfile(u"P"_s, u"Title = '', SortTitle = ''"_s);
    EXPECT_EQ(Text(Profile()), QString());
    try {
        GetSortTitle(session.view, Profile(), false);
        FAIL() << "no error";
    } catch (const sql::SqlError &error) {
        EXPECT_EQ(error.Code(), sql::ErrorCode::ItemNotFound);
        EXPECT_TRUE(error.Text().contains(u"OriginalTitel"_s)) << qPrintable(error.Text());
    }
}

TEST_F(TitlesTest, MissingFieldsFailOnlyWhereTheyAreRead) {
    AddProfile(u"P"_s, u"Title = 'T', OriginalTitle = 'O'"_s);
    const sql::Recordset title_only = Profile(u"Title"_s);
    EXPECT_EQ(GetTitle(session.view, title_only, false, false), u"T"_s);
    session.view.mUseOriginalTitle = true;
    EXPECT_THROW(GetTitle(session.view, title_only, false, false), sql::SqlError);
    EXPECT_THROW(GetSortTitle(session.view, title_only, false), sql::SqlError);
    session.view.mUseOriginalTitle = false;
    session.view.mShowDescription = true;
    EXPECT_THROW(Text(title_only), sql::SqlError);
}

TEST_F(TitlesTest, RecordWithoutCustomTitlesHasNone) {
    AddProfile(u"P"_s, kAll.toString());
    session.view.mUseCustomTitle = true;
    const sql::Recordset record = Profile(u"Title, SortTitle"_s);
    EXPECT_EQ(GetTitle(session.view, record, false, false), u"T"_s);
    EXPECT_EQ(GetSortTitle(session.view, record, false), u"ST"_s);
}

TEST_F(TitlesTest, EpisodeTitles) {
    struct {
        QStringView title;
        QStringView original;
        bool use_original;
        QStringView expected;
    } const rows[] = {
        {u"T", u"O", false, u"T"}, {u"", u"O", false, u"* O"}, {u"", u"", false, u"* "},
        {u"T", u"O", true, u"O"},  {u"T", u"", true, u"T"},    {u"", u"O", true, u"O"},
    };
    for (const auto &row : rows) {
        Run(u"DELETE FROM Episodes");
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle, EpisodeOriginalTitle) VALUES ('e', 's', '%1', "
            "'%2')"_s.arg(row.title.toString(), row.original.toString()));
        session.view.mUseOriginalTitle = row.use_original;
        const sql::Recordset record = session.Database->OpenRecordset(u"SELECT * FROM Episodes");
        EXPECT_EQ(GetEpisodeTitle(session.view, record), row.expected.toString());
    }
}

TEST_F(TitlesTest, ReaderFollowsTheRecord) {
    AddProfile(u"P"_s, u"Title = 'First'"_s);
    AddProfile(u"Q"_s, u"Title = 'Second', OriginalTitle = 'Zweiter'"_s);
    sql::Recordset record = session.Database->OpenRecordset(u"SELECT * FROM Profiles ORDER BY ProfileID");
    const TitleReader reader(session.view, record);
    EXPECT_EQ(reader.GetTitle(false, true), u"First"_s);
    EXPECT_EQ(reader.OriginalOrTitle(), u"First"_s);
    record.MoveNext();
    EXPECT_EQ(reader.GetTitle(false, true), u"Second"_s);
    EXPECT_EQ(reader.OriginalOrTitle(), u"Zweiter"_s);
}

} // namespace
} // namespace ostrand
