// Cast and crew as script variables.
#include "HeaderVarsFixture.h"

#include <QFile>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class HeaderVarsCredits : public test::HeaderVarsFixture {
protected:
    void SetUp() override {
        HeaderVarsFixture::SetUp();
        AddProfile();
    }
    /// The constructor calls of an array.
    QStringList Entries(const QString &text, const QString &name) {
        QStringList entries;
        for (const QString &line : text.split(u"\r\n"_s)) {
            if (line.startsWith(u'\t' + name + u'[')) {
                EXPECT_TRUE(line.startsWith(u"\t%1[%2] = new "_s.arg(name).arg(entries.size()))) << line.toStdString();
                entries.append(line.mid(line.indexOf(u"new "_s) + 4));
            }
        }
        EXPECT_EQ(ValueOf(text, name), u"new Array(%1)"_s.arg(entries.size()));
        return entries;
    }
    QStringList Cast(bool is_episode = false) {
        return Entries(DPVars(u"IncludeCast=\"yes\""_s, is_episode), u"DP_CastEntries"_s);
    }
    QStringList Crew(bool is_episode = false) {
        return Entries(DPVars(u"IncludeCrew=\"yes\""_s, is_episode), u"DP_CrewEntries"_s);
    }
    /// A credit: name, role, position, year, uncredited, voice, cast.
    void Credit(const QString &values) {
        Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, BirthYear, IsUncredited, IsVoice, IsCast) VALUES "
            "('Key_100.4', "_s +
            values + u')');
    }
};

TEST_F(HeaderVarsCredits, TellTheCastInItsOrder) {
    Credit(u"'Rory O''Shaughnahan', 'Kite', 3, 1960, true, true, true"_s);
    Credit(u"'Old Friends', '[DivGroup]', 1, 0, false, false, true"_s);
    Credit(u"'Ann Mary Lee', 'Herself \"A\"', 2, NULL, false, false, true"_s);
    Credit(u"'', '[DivEnd]', 4, 0, false, false, true"_s);
    Credit(u"'Zora', NULL, 5, 0, false, false, true"_s);
    Credit(u"'Nobody', 'Director', 1, 0, false, false, false"_s);
    EXPECT_EQ(Cast(),
              (QStringList{
                  u"DP_CastEntry(\"\", \"\", \"\", \"\", false, false, \"Old Friends\", false, 0);"_s,
                  u"DP_CastEntry(\"Ann\", \"Mary\", \"Lee\", \"Herself \\\"A\\\"\", false, false, \"\", false, 0);"_s,
                  u"DP_CastEntry(\"Rory\", \"\", \"O\\'Shaughnahan\", \"Kite\", true, true, \"\", false, 1960);"_s,
                  u"DP_CastEntry(\"\", \"\", \"\", \"\", false, false, \"\", false, 0);"_s,
                  u"DP_CastEntry(\"Zora\", \"\", \"\", \"\", false, false, \"\", false, 0);"_s}));
}

TEST_F(HeaderVarsCredits, TellTheCommonNameAndTheCreditedOne) {
    Run(u"INSERT INTO Alias VALUES ('A. Lee', 'Ann Lee', 0, '')"_s);
    Credit(u"'A. Lee', 'Director', 1, 0, false, false, false"_s);
    Credit(u"'A. Lee', 'Herself', 1, 0, false, false, true"_s);
    EXPECT_EQ(Cast(),
              QStringList{u"DP_CastEntry(\"Ann\", \"\", \"Lee\", \"Herself\", false, false, \"A. Lee\", false, 0);"_s});
    EXPECT_EQ(Crew(), QStringList{u"DP_CrewEntry(\"Ann\", \"\", \"Lee\", \"Direction\", \"Director\", \"A. Lee\", "
                                  "\"Direction\", \"Director\", \"\", false, 0);"_s});
}

TEST_F(HeaderVarsCredits, TellTheCommonNameOfTheirBirthYear) {
    Run(u"INSERT INTO Alias VALUES ('A. Lee', 'Ann Lee', 1950, '')"_s);
    Run(u"INSERT INTO Alias VALUES ('Old Friends', 'New Friends', 0, '')"_s);
    Credit(u"'A. Lee', '', 1, 1950, false, false, true"_s);
    Credit(u"'A. Lee', '', 2, 1960, false, false, true"_s);
    Credit(u"'A. Lee', '', 3, NULL, false, false, true"_s); // finds the link of any year
    Credit(u"'Old Friends', '[Divider]', 4, 0, false, false, true"_s);
    EXPECT_EQ(Cast(),
              (QStringList{u"DP_CastEntry(\"Ann\", \"\", \"Lee\", \"\", false, false, \"A. Lee\", false, 1950);"_s,
                           u"DP_CastEntry(\"A.\", \"\", \"Lee\", \"\", false, false, \"\", false, 1960);"_s,
                           u"DP_CastEntry(\"Ann\", \"\", \"Lee\", \"\", false, false, \"A. Lee\", false, 0);"_s,
                           u"DP_CastEntry(\"\", \"\", \"\", \"\", false, false, \"Old Friends\", false, 0);"_s}));
}

TEST_F(HeaderVarsCredits, TakeAnyNameApart) {
    const struct {
        QString name;
        QString parts;
    } cases[] = {
        {u""_s, u"\"\", \"\", \"\""_s},
        {u"Zora"_s, u"\"Zora\", \"\", \"\""_s},
        {u"\u00C9mile O'Brien"_s, u"\"\u00C9mile\", \"\", \"O\\'Brien\""_s},
        {u"Ann \"Bo\" Lee-Roe"_s, u"\"Ann\", \"\\\"Bo\\\"\", \"Lee-Roe\""_s},
        {u"Mary Ann van der Mire jr."_s, u"\"Mary\", \"Ann\", \"van der Mire jr.\""_s},
        {u"The Brook & Choir"_s, u"\"The Brook & Choir\", \"\", \"\""_s},
        {u"</script><b> A\\B"_s, u"\"</script><b>\", \"\", \"A\\\\B\""_s},
        {u"Ann\r\nBo"_s, u"\"Ann\\r\\nBo\", \"\", \"\""_s},
        {u"%1 %2 100%"_s, u"\"%1\", \"%2\", \"100%\""_s},
    };
    for (const auto &row : cases) {
        Run(u"DELETE FROM CastCrew"_s);
        const QString name = u'\'' + EscapeSql(row.name) + u'\'';
        Credit(name + u", 'Kite', 1, 0, false, false, true"_s);
        Credit(name + u", 'Writer', 1, 0, false, false, false"_s);
        EXPECT_EQ(Cast(),
                  QStringList(u"DP_CastEntry("_s + row.parts + u", \"Kite\", false, false, \"\", false, 0);"_s));
        EXPECT_EQ(Crew(), QStringList(u"DP_CrewEntry("_s + row.parts +
                                      u", \"Writing\", \"Writer\", \"\", \"Writing\", \"Writer\", \"\", false, 0);"_s));
    }
}

TEST_F(HeaderVarsCredits, LookForPicturesUnderEveryName) {
    Run(u"INSERT INTO Alias VALUES ('A. Lee', 'Ann Lee', 1950, '')"_s);
    Credit(u"'A. Lee', '', 1, 1950, false, false, true"_s);
    Credit(u"'Zora', '[Divider]', 2, 0, false, false, true"_s);
    Credit(u"'Bo Tarn', '', 3, 0, false, false, true"_s);
    folder.Write(u"heads/Zora.jpg"_s, "x");          // a caption has none
    folder.Write(u"heads/Bo Tarn(1960).jpg"_s, "x"); // that of another person
    folder.Write(u"heads/Bo Tarn_1.jpg"_s, "x");     // a further one alone
    const auto pictures = [&] {
        QString flags;
        for (const QString &entry : Cast()) {
            flags += entry.contains(u", true, "_s) ? u'1' : u'0';
        }
        return flags;
    };
    EXPECT_EQ(pictures(), u"000"_s);
    for (const QString &file :
         {u"Ann Lee(1950).jpg"_s, u"A. Lee(1950).jpg"_s, u"Ann Lee.jpg"_s}) { // the last without its year
        const QString path = folder.Write(u"heads/"_s + file, "x");
        skin.headshots = FolderIndex();
        EXPECT_EQ(pictures(), u"100"_s) << file.toStdString();
        ASSERT_TRUE(QFile::remove(path));
        skin.headshots = FolderIndex();
    }
    folder.Write(u"heads/A. Lee.jpg"_s, "x");
    EXPECT_EQ(pictures(), u"000"_s);
}

TEST_F(HeaderVarsCredits, KnowWhoHasAPicture) {
    Credit(u"'Ann Lee', '', 1, 1950, false, false, true"_s);
    Credit(u"'Zora', '', 2, 0, false, false, true"_s);
    Credit(u"'Zora', 'Writer', 1, 0, false, false, false"_s);
    folder.Write(u"heads/Ann Lee(1950).jpg"_s, "x");
    folder.Write(u"heads/zora.JPG"_s, "x");
    EXPECT_TRUE(Cast().value(0).endsWith(u", true, 1950);"_s));
    EXPECT_TRUE(Cast().value(1).endsWith(u", true, 0);"_s));
    EXPECT_TRUE(Crew().value(0).endsWith(u", true, 0);"_s));
    session.HeadshotPath.clear();
    EXPECT_TRUE(Cast().value(0).endsWith(u", false, 1950);"_s));
}

TEST_F(HeaderVarsCredits, TellTheCrewByTypes) {
    Run(u"INSERT INTO Translation VALUES ('Writing', 'local W')"_s);
    Run(u"INSERT INTO Translation VALUES ('Story By', 'local S')"_s);
    session.UseUserDefinedStrings = true;
    ASSERT_EQ(Translate(session, u"Writing"_s), u"local W"_s);
    Credit(u"'Team One', '[DivTeam]', 1, 0, false, false, false"_s);
    Credit(u"'Ann Lee', 'Story By', 2, 1950, true, false, false"_s);
    Credit(u"'Zora', 'Kite Wrangler', 3, 0, false, false, false"_s);
    Credit(u"'Nobody', 'Herself', 1, 0, false, false, true"_s);
    EXPECT_EQ(Crew(),
              (QStringList{u"DP_CrewEntry(\"\", \"\", \"\", \"\", \"\", \"Team One\", \"\", \"\", \"\", false, 0);"_s,
                           u"DP_CrewEntry(\"Ann\", \"\", \"Lee\", \"Writing\", \"Story By\", \"\", \"local W\", "
                           "\"local S\", \"\", false, 1950);"_s,
                           u"DP_CrewEntry(\"Zora\", \"\", \"\", \"Other\", \"Custom\", \"\", \"Other\", "
                           "\"Custom\", \"Kite Wrangler\", false, 0);"_s}));
}

TEST_F(HeaderVarsCredits, OfAnEpisodeComeFromItsOwnTable) {
    AddEpisode();
    const QString insert =
        u"INSERT INTO TVCastCrew (EpisodeID, Name, Role, Position, BirthYear, IsUncredited, IsVoice, IsCast) VALUES "
        "('E1', 'Ann Lee', "_s;
    Run(insert + u"'Moss', 1, 0, false, true, true)"_s);
    Run(insert + u"'Composer', 2, 0, false, false, false)"_s);
    Credit(u"'Nobody', 'Herself', 1, 0, false, false, true"_s);
    EXPECT_EQ(Cast(true),
              QStringList{u"DP_CastEntry(\"Ann\", \"\", \"Lee\", \"Moss\", true, false, \"\", false, 0);"_s});
    EXPECT_EQ(Crew(true), QStringList{u"DP_CrewEntry(\"Ann\", \"\", \"Lee\", \"Music\", \"Composer\", \"\", \"Music\", "
                                      "\"Composer\", \"\", false, 0);"_s});
}

} // namespace
} // namespace ostrand
