#include "CollectionFixture.h"

namespace ostrand {

using namespace Qt::StringLiterals;

TEST(CrewRoleMaps, EveryJobHasItsCreditType) {
    static constexpr struct {
        QStringView job;
        QStringView type;
    } kJobs[] = {
        {u"Director", u"Direction"},
        {u"Original Material By", u"Writing"},
        {u"Screenwriter", u"Writing"},
        {u"Writer", u"Writing"},
        {u"Original Characters By", u"Writing"},
        {u"Created By", u"Writing"},
        {u"Story By", u"Writing"},
        {u"Producer", u"Production"},
        {u"Executive Producer", u"Production"},
        {u"Director of Photography", u"Cinematography"},
        {u"Cinematographer", u"Cinematography"},
        {u"Film Editor", u"Film Editing"},
        {u"Composer", u"Music"},
        {u"Song Writer", u"Music"},
        {u"Theme By", u"Music"},
        {u"Sound", u"Sound"},
        {u"Sound Designer", u"Sound"},
        {u"Supervising Sound Editor", u"Sound"},
        {u"Sound Editor", u"Sound"},
        {u"Sound Re-Recording Mixer", u"Sound"},
        {u"Production Sound Mixer", u"Sound"},
        {u"Production Designer", u"Art"},
        {u"Art Director", u"Art"},
        {u"Costume Designer", u"Art"},
        {u"Make-up Artist", u"Art"},
        {u"Visual Effects", u"Art"},
        {u"Make-up Effects", u"Art"},
        {u"Creature Design", u"Art"},
        {u"creature design", u"Art"},
        {u"Line Producer", u""},
        {u"", u""},
    };
    for (const auto &row : kJobs) {
        EXPECT_EQ(CrewRoleMaps::CreditType(row.job.toString()), row.type) << row.job.toString().toStdString();
    }
}

TEST(CrewRoleMaps, TheDefaultShowsEightBranches) {
    CrewRoleMaps maps;
    maps.Load(CrewRoleMaps::DefaultMapping());
    EXPECT_EQ(maps.Categories(), QStringList({u"Direction"_s, u"Writing"_s, u"Production"_s, u"Cinematography"_s,
                                              u"Film Editing"_s, u"Music"_s, u"Sound"_s, u"Art"_s}));
    EXPECT_EQ(maps.Mapping(), CrewRoleMaps::DefaultMapping());
    EXPECT_EQ(CrewRoleMaps::DefaultMapping().count(u'|'), 54);
}

TEST(CrewRoleMaps, TheMisspellingOfTheDefaultIsAJobOfItsOwn) {
    CrewRoleMaps maps;
    maps.Load(CrewRoleMaps::DefaultMapping());
    EXPECT_EQ(maps.Category(u"Sound Effects Edtior"_s), u"Sound"_s);
    EXPECT_FALSE(maps.HasCategory(u"Sound Effects Editor"_s));
}

TEST(CrewRoleMaps, MappingsAreSplitAndTrimmed) {
    static constexpr struct {
        const char *what;
        QStringView mapping;
        QStringView job;
        QStringView category;
        QStringView categories;
    } kMappings[] = {
        {"a pair", u"Gaffer=Light", u"Gaffer", u"Light", u"Light"},
        {"any case of the job", u"Gaffer=Light", u"GAFFER", u"Light", u"Light"},
        {"blanks", u" Gaffer = Light | Grip=Light ", u"Gaffer", u"Light", u"Light"},
        {"the first occurrence of a job wins", u"Gaffer=Light|Gaffer=Sound", u"Gaffer", u"Light", u"Light"},
        {"order of first appearance", u"B=Two|A=One|C=Two", u"C", u"Two", u"Two,One"},
        {"a branch in two spellings", u"A=Art|B=ART", u"B", u"Art", u"Art"},
        {"no branch", u"Gaffer|Grip=Light", u"Gaffer", u"", u"Light"},
        {"an empty branch", u"Gaffer=|Grip=Light", u"Gaffer", u"", u"Light"},
        {"an empty job", u"=Light", u"", u"", u""},
        {"a third part", u"Gaffer=Light=More", u"Gaffer", u"Light", u"Light"},
        {"nothing", u"", u"Gaffer", u"", u""},
    };
    for (const auto &row : kMappings) {
        SCOPED_TRACE(row.what);
        CrewRoleMaps maps;
        maps.Load(u"Old=Gone"_s);
        maps.Load(row.mapping.toString());
        EXPECT_EQ(maps.Category(row.job.toString()), row.category);
        EXPECT_EQ(maps.HasCategory(row.job.toString()), !row.category.isEmpty());
        EXPECT_EQ(maps.Categories().join(u','), row.categories);
        EXPECT_FALSE(maps.HasCategory(u"Old"_s));
    }
}

using CrewMappingTest = CollectionTest;

TEST_F(CrewMappingTest, OpeningWritesTheDefaultBack) {
    Create();
    ASSERT_TRUE(OpenCollectionDatabase(session, Path(u"New.mdb"_s)));
    EXPECT_EQ(Rows(u"SELECT InfoValue, Comment FROM DbInfo WHERE InfoName = 'CrewMapping'"),
              QStringList(CrewRoleMaps::DefaultMapping() + u"|Crew role mapping table for crew tree"_s));
    EXPECT_EQ(session.CrewRoles.Category(u"Director"_s), u"Direction"_s);
}

TEST_F(CrewMappingTest, OpeningTakesTheUsersMapping) {
    Create();
    WriteDbInfo(session, u"CrewMapping"_s, u"Gaffer=Light"_s);
    ASSERT_TRUE(OpenCollectionDatabase(session, Path(u"New.mdb"_s)));
    EXPECT_EQ(session.CrewRoles.Categories(), QStringList(u"Light"_s));
}

} // namespace ostrand
