#include "html_export/CrossLinkFiles.h"

#include "html_export/NameIndexFiles.h"

#include "SiteFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class CrossLinkFilesTest : public SiteTest {
protected:
    void SetUp() override {
        SiteTest::SetUp();
        folder = site + u"/crosslink/"_s;
        QDir().mkpath(folder);
    }
    void Credit(const QString &name, const QString &profile, const QString &role = u"Actor"_s) {
        ASSERT_EQ(
            Run(u"INSERT INTO CastCrew (Name, Role, ProfileID, Position, IsCast) VALUES ('%1', '%2', '%3', %4, true)"_s
                    .arg(EscapeSql(name), EscapeSql(role), EscapeSql(profile))
                    .arg(++position)),
            1);
    }
    void Alias(const QString &alias, const QString &common) {
        Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('%1', '%2', 0)"_s.arg(alias, common));
    }
    QString File(const QString &name) { return Read(u"crosslink/"_s + name); }

    QString folder;
    int position = 0;
};

TEST_F(CrossLinkFilesTest, TellTheProfilesOfEachPerson) {
    Credit(u"Ann Lee"_s, u"Key_2"_s);
    Credit(u"Ann Lee"_s, u"Key_1"_s);
    Credit(u"Anna O'Hara"_s, u"Key_2"_s);
    Credit(u"Bo Ek"_s, u"Key_3"_s);
    CreateCrossLinkFiles(session, folder);
    EXPECT_EQ(FilesIn(u"crosslink"_s),
              (QStringList{u"load-an.js"_s, u"load-bo.js"_s, u"names-an.js"_s, u"names-bo.js"_s, u"names-ek.js"_s,
                           u"names-ha.js"_s, u"names-le.js"_s, u"people-an.js"_s, u"people-bo.js"_s}));
    EXPECT_EQ(File(u"people-an.js"_s), u"[{'ann_lee':['2', '1'], 'anna_ohara':['2']}]"_s);
    EXPECT_EQ(File(u"people-bo.js"_s), u"[{'bo_ek':['3']}]"_s);
    EXPECT_EQ(File(u"load-an.js"_s), u"crossLinks([\r\n[\"ann_lee\",\"Ann Lee\",\"2\",\"1\"],\r\n"
                                     "[\"anna_ohara\",\"Anna O'Hara\",\"2\"],\r\n]);\r\n"_s);
    EXPECT_EQ(File(u"names-an.js"_s), u"crossLinkNames(\"an\",[\r\n[\"Ann Lee\",\"ann_lee\",2],\r\n"
                                      "[\"Anna O'Hara\",\"anna_ohara\",1],\r\n]);\r\n"_s);
    EXPECT_EQ(File(u"names-ha.js"_s), u"crossLinkNames(\"ha\",[\r\n[\"Anna O'Hara\",\"anna_ohara\",1],\r\n]);\r\n"_s);
}

TEST_F(CrossLinkFilesTest, LaterNamesAreAppendedToTheSameFile) {
    // The accent stands between the names in the order of the database.
    for (const QString &name : {u"Emil A"_s, u"\u00C9mil B"_s, u"Emil C"_s, u"\u00C9mil D"_s, u"Emil E"_s}) {
        Credit(name, u"Key_1"_s);
    }
    CreateCrossLinkFiles(session, folder);
    EXPECT_EQ(File(u"people-em.js"_s), u"[{'emil_a':['1'], 'emil_c':['1'], 'emil_e':['1']}]"_s);
    EXPECT_EQ(File(u"people-\u00E9m.js"_s), u"[{'\u00E9mil_b':['1'], '\u00E9mil_d':['1']}]"_s);
    EXPECT_EQ(File(u"load-em.js"_s).count(u'['), 4);
    EXPECT_EQ(File(u"load-u00e9m.js"_s).count(u'['), 3);
    EXPECT_TRUE(File(u"load-u00e9m.js"_s).endsWith(u"],\r\n]);\r\n"_s));
}

TEST_F(CrossLinkFilesTest, RolesAndNamesThatCount) {
    session.progress.Load({});
    Credit(u"A One"_s, u"Key_1"_s, u"[DivGroup"_s);
    Credit(u"A Two"_s, u"Key_1"_s, u"Diver"_s);
    Credit(u""_s, u"Key_1"_s);
    CreateCrossLinkFiles(session, folder);
    EXPECT_EQ(File(u"people-a_.js"_s), u"[{'a_two':['1']}]"_s);
    EXPECT_TRUE(services.progress.Has(u"line Person 1 of 1"_s));
}

TEST_F(CrossLinkFilesTest, PersonsStandUnderTheirCommonNames) {
    Credit(u"Nick Name"_s, u"Key_1"_s);
    Credit(u"Real Name"_s, u"Key_2"_s);
    Credit(u"Nick Name"_s, u"Key_2"_s);
    Alias(u"Nick Name"_s, u"Real Name"_s);
    CreateCrossLinkFiles(session, folder);
    EXPECT_EQ(File(u"people-re.js"_s).count(u"'2'"_s), 2) << "one a credit";
    EXPECT_TRUE(File(u"names-na.js"_s).contains(u"[\"Real Name\",\"real_name\",2],"_s)) << "profiles count once";
    EXPECT_FALSE(Has(u"crosslink/people-ni.js"_s));
}

TEST_F(CrossLinkFilesTest, SpellingsOfOneIdAreOnePerson) {
    Credit(u"ann lee"_s, u"Key_1"_s);
    Credit(u"Ann Lee"_s, u"Key_2"_s);
    Credit(u"ann lee"_s, u"Key_3"_s);
    CreateCrossLinkFiles(session, folder);
    EXPECT_EQ(File(u"people-an.js"_s), u"[{'ann_lee':['1', '2', '3']}]"_s);
}

TEST_F(CrossLinkFilesTest, HostileTextsStayTexts) {
    Credit(u"<b>\"x\" \\"_s, u"Key_a'];alert(1)//"_s);
    Credit(u"??"_s, u"Key_1"_s);
    Credit(u"../up"_s, u"Key_../2"_s);
    CreateCrossLinkFiles(session, folder);
    EXPECT_EQ(File(u"people-b.js"_s), u"[{'bx_':['a\\u0027];alert(1)//']}]"_s);
    EXPECT_EQ(File(u"load-bx.js"_s),
              u"crossLinks([\r\n[\"bx_\",\"\\u003Cb>\\u0022x\\u0022 \\u005C\",\"a'];alert(1)\"],\r\n]);\r\n"_s);
    EXPECT_EQ(File(u"people-...js"_s), u"[{'..up':['../2']}]"_s);
    EXPECT_EQ(File(u"load-u002eu002e.js"_s), u"crossLinks([\r\n[\"..up\",\"../up\",\"..2\"],\r\n]);\r\n"_s);
    EXPECT_FALSE(Has(u"crosslink/load-.js"_s));
    EXPECT_EQ(File(u"people-.js"_s), u"[{'':['1']}]"_s) << "a name of nothing but marks";
}

TEST_F(CrossLinkFilesTest, OldScriptsAreDeleted) {
    for (const QString &name : {u"people-zz.js"_s, u"load-zz.JS"_s, u"note.txt"_s, u"js"_s}) {
        WriteTestFile(folder + name, "old");
    }
    QDir().mkpath(folder + u"sub.js"_s);
    DeleteOldCrossLinkFiles(folder);
    EXPECT_EQ(FilesIn(u"crosslink"_s), (QStringList{u"js"_s, u"note.txt"_s}));
    EXPECT_TRUE(QFileInfo(folder + u"sub.js"_s).isDir());
}

TEST_F(CrossLinkFilesTest, WithoutCreditsThereAreNone) {
    CreateCrossLinkFiles(session, folder);
    EXPECT_TRUE(FilesIn(u"crosslink"_s).isEmpty());
}

TEST_F(CrossLinkFilesTest, NamesOfManyPersonsAreWrittenInParts) {
    constexpr int kPersons = 1500;
    for (int i = 0; i < kPersons; ++i) {
        Credit(u"Person No%1"_s.arg(i), u"Key_1"_s);
    }
    CreateCrossLinkFiles(session, folder);
    const QString names = File(u"names-pe.js"_s);
    EXPECT_EQ(names.count(u"\"Person No"_s), kPersons);
    EXPECT_EQ(names.count(u"crossLinkNames("_s), 1);
    EXPECT_TRUE(names.endsWith(u"],\r\n]);\r\n"_s));
    EXPECT_EQ(names, QString(File(u"names-no.js"_s)).replace(u"(\"no\""_s, u"(\"pe\""_s));
}

TEST(WordBeginnings, AreTwoLettersOfEachWord) {
    const struct {
        QString name;
        QStringList beginnings;
    } cases[] = {
        {u"Ann Lee"_s, {u"an"_s, u"le"_s}},
        {u"\u00C9mile O'Hara-Ann"_s, {u"em"_s, u"ha"_s, u"an"_s}},
        {u"Anna Annabel"_s, {u"an"_s}},
        {u"J. R. 9to"_s, {u"9t"_s}},
        {u"\u738B \u5C0F\u660E"_s, {u"\u738B"_s, u"\u5C0F\u660E"_s}},
        {u"X"_s, {}},
        {{}, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(WordBeginnings(c.name), c.beginnings) << c.name.toStdString();
    }
}

TEST(LoadScriptFileName, HoldsNothingUnusual) {
    const struct {
        QString id, name;
    } cases[] = {{u"ann_lee"_s, u"load-an.js"_s}, {u"a"_s, u"load-a.js"_s},           {u"_b"_s, u"load-_b.js"_s},
                 {u"9z"_s, u"load-9z.js"_s},      {u"é-"_s, u"load-u00e9u002d.js"_s}, {u"Ab"_s, u"load-u0041b.js"_s}};
    for (const auto &c : cases) {
        EXPECT_EQ(LoadScriptFileName(c.id), c.name);
    }
}

} // namespace
} // namespace ostrand
