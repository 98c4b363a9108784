#include "collection_files/ImportCredits.h"

#include "collection_files/ImportFixture.h"

namespace ostrand {

namespace {

class Credits : public ImportTest {
protected:
    QStringList Cast() {
        return Rows(u"SELECT Position, Name, Role, BirthYear, IsVoice, IsUncredited, IsCreditOnly FROM CastCrew WHERE "
                    "ProfileID = 'Key_1' AND IsCast = true ORDER BY Position");
    }
    QStringList Crew() {
        return Rows(u"SELECT Position, Name, Role, BirthYear, IsVoice, IsUncredited, IsCreditOnly FROM CastCrew WHERE "
                    "ProfileID = 'Key_1' AND IsCast = false ORDER BY Position");
    }
    QStringList CastOf(const QByteArray &actors) {
        EXPECT_TRUE(ImportOne("<Actors>" + actors + "</Actors>"));
        return Cast();
    }
    QStringList CrewOf(const QByteArray &credits) {
        EXPECT_TRUE(ImportOne("<Credits>" + credits + "</Credits>"));
        return Crew();
    }
    QStringList Aliases() { return Rows(u"SELECT AliasName, CommonName, BirthYear FROM Alias ORDER BY AliasName"); }
};

TEST_F(Credits, ActorsAreReadFromAttributes) {
    EXPECT_EQ(CastOf("<!-- the cast --><Actor FirstName='Ann' MiddleName='Lee' LastName='Smith' Role='Captain' "
                     "BirthYear='1950' Voice='True' Uncredited='true'/><Actor FirstName='Bob' LastName=''/>"
                     "<Actor FirstName='Bob'/><Unknown a='b'/>"),
              (QStringList{u"1|Ann Lee Smith|Captain|1950|True|True|False"_s, u"2|Bob||0|False|False|False"_s,
                           u"3|Bob||0|False|False|False"_s}));
}

TEST_F(Credits, BirthYearsAreTakenAsTheyStand) {
    const std::pair<const char *, const char *> cases[] = {
        {"1950", "1950"}, {"33412", "33412"}, {"-5", "-5"}, {"", "0"}, {"about 1950", "0"}, {"99999999999", "0"},
    };
    for (const auto &[text, year] : cases) {
        EXPECT_EQ(CastOf("<Actor FirstName='Bob' BirthYear='" + QByteArray(text) + "'/>"),
                  QStringList{u"1|Bob||%1|False|False|False"_s.arg(QString::fromLatin1(year))});
    }
}

TEST_F(Credits, DividersCarryTheirCaption) {
    EXPECT_EQ(CastOf("<Divider Caption='A' Type='Episode'/><Divider Caption='B' Type='Group'/><Divider Caption='C' "
                     "Type='Team'/><Divider Caption='D' Type='EndDiv'/><Divider Caption='E'/><Divider Caption='J.R. X' "
                     "Type='Other'/>"),
              (QStringList{u"1|A|[DivEpisode]|0|False|False|False"_s, u"2|B|[DivGroup]|0|False|False|False"_s,
                           u"3|C|[DivTeam]|0|False|False|False"_s, u"4||[DivEnd]|0|False|False|False"_s,
                           u"5|E|[Divider]|0|False|False|False"_s, u"6|J.R. X|[Divider]|0|False|False|False"_s}));
    EXPECT_EQ(Aliases(), QStringList()) << "a caption is no name";
}

TEST_F(Credits, OlderCastIsReadFromChildren) {
    EXPECT_EQ(CastOf("<Actor><FirstName>Ann</FirstName><MiddleName>Lee</MiddleName><LastName>Smith</LastName><Role>R"
                     "</Role><BirthYear>1950</BirthYear><IsVoice>True</IsVoice><IsUncredited>true</IsUncredited>"
                     "<IsCreditOnly>True</IsCreditOnly></Actor>"
                     "<CastMember><Name>Bob Smith</Name><Role>S</Role></CastMember>"
                     "<CastMember><Name>Group</Name><Role>[DivGroup]</Role></CastMember>"
                     "<CastMember><Name>Gone</Name><Role>[DivEnd]</Role></CastMember>"),
              (QStringList{u"1|Ann Lee Smith|R|1950|True|True|True"_s, u"2|Bob Smith|S|0|False|False|False"_s,
                           u"3|Group|[DivGroup]|0|False|False|False"_s, u"4||[DivEnd]|0|False|False|False"_s}));
}

TEST_F(Credits, RolesAreCleaned) {
    struct Case {
        const char *role;
        const char *result;
    };
    const Case cases[] = {
        {"Fox (voice)", "Fox|0|True|False|False"},
        {"Fox (Voice)", "Fox|0|True|False|False"},
        {"Fox(voice)", "Fox|0|True|False|False"},
        {"Fox (VOICE)", "Fox (VOICE)|0|True|False|False"},
        {"Fox (uncredited)", "Fox|0|False|True|False"},
        {"Fox (Uncredited)", "Fox|0|False|True|False"},
        {"Fox(uncredited)", "Fox|0|False|True|False"},
        {"Fox (uncr)", "Fox|0|False|True|False"},
        {"Fox (uncr.)", "Fox|0|False|True|False"},
        {"Fox (uncred.)", "Fox|0|False|True|False"},
        {"Fox (uncred)", "Fox (uncred)|0|False|True|False"},
        {"Fox (Credit Only)", "Fox|0|False|False|True"},
        {"(credit only)", "|0|False|False|True"},
        {"Fox (voice) (uncredited)", "Fox|0|True|True|False"},
        {"Fox (old)", "Fox (old)|0|False|False|False"},
    };
    for (const Case &cleaned : cases) {
        EXPECT_EQ(CastOf("<Actor FirstName='Bob' Role='" + QByteArray(cleaned.role) + "'/>"),
                  QStringList{u"1|Bob|"_s + QString::fromLatin1(cleaned.result)});
    }
}

TEST_F(Credits, CreditedAsIsStoredAndLinked) {
    EXPECT_EQ(CastOf("<Actor FirstName='Ann' LastName='Smith' CreditedAs='Annie O&apos;Smith' BirthYear='1950'/>"),
              QStringList{u"1|Annie O'Smith||1950|False|False|False"_s});
    EXPECT_EQ(Aliases(), QStringList{u"Annie O'Smith|Ann Smith|1950"_s});
}

TEST_F(Credits, AConflictOfAliasesIsToldAndTheCreditStored) {
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Annie', 'Zoe', 0)");
    Expect(u"Duplicate Link Entry!\nAnnie already linked to Zoe! Link to Ann Smith not imported!"_s, {},
           MessageIcon::Warning);
    EXPECT_EQ(CastOf("<Actor FirstName='Ann' LastName='Smith' CreditedAs='Annie'/>"),
              QStringList{u"1|Annie||0|False|False|False"_s});
}

TEST_F(Credits, NamesAreNormalised) {
    CastOf("<Actor FirstName='J.R.' LastName='Smith' BirthYear='1940'/><Actor FirstName='Ann' LastName='Smith'/>");
    EXPECT_EQ(Aliases(), QStringList{u"J.R. Smith|J. R. Smith|1940"_s});
    EXPECT_EQ(Cast().first(), u"1|J.R. Smith||1940|False|False|False"_s);
}

TEST_F(Credits, AMissingCastIsEmpty) {
    CastOf("<Actor FirstName='Ann'/>");
    EXPECT_TRUE(ImportOne("<Title>Other</Title>"));
    EXPECT_EQ(Cast(), QStringList());
}

TEST_F(Credits, TheLockOfTheCastLeavesTheCrewOpen) {
    EXPECT_TRUE(ImportOne("<Actors><Actor FirstName='Ann'/></Actors><Credits><Credit FirstName='Bob' "
                          "CreditType='Direction' CreditSubtype='Director'/></Credits>"));
    Lock(u"Cast"_s);
    EXPECT_TRUE(ImportOne("<Actors><Actor FirstName='Cat'/></Actors><Credits/>"));
    EXPECT_EQ(Cast().size(), 1);
    EXPECT_EQ(Crew().size(), 0);
    Run(u"DELETE FROM Locks");
    Lock(u"Crew"_s);
    EXPECT_TRUE(ImportOne("<Credits><Credit FirstName='Dan' CreditType='Direction' "
                          "CreditSubtype='Director'/></Credits>"));
    EXPECT_EQ(Cast().size(), 0);
    EXPECT_EQ(Crew().size(), 0);
}

TEST_F(Credits, CrewIsReadFromAttributes) {
    EXPECT_EQ(CrewOf("<Credit FirstName='Ann' LastName='Smith' CreditType='Direction' CreditSubtype='Director' "
                     "BirthYear='1950'/><Credit FirstName='Bob' CreditType='Direction' CreditSubtype='Director' "
                     "CustomRole='Helper' CreditedAs='Bobby'/><Credit FirstName='Cat' CreditType='Other' "
                     "CreditSubtype='Custom' CustomRole='Stunts: Driver: Car'/><Credit FirstName='Dan' "
                     "CreditType='Writing' CreditSubtype='Writer (uncredited)' CustomRole=''/><Divider "
                     "Caption='Part' Type='Group'/><Actor FirstName='None'/>"),
              (QStringList{u"1|Ann Smith|Director|1950|False|False|False"_s, u"2|Bobby|Helper|0|False|False|False"_s,
                           u"3|Cat|Driver: Car|0|False|False|False"_s, u"4|Dan|Writer|0|False|True|False"_s,
                           u"5|Part|[DivGroup]|0|False|False|False"_s}));
    EXPECT_EQ(Aliases(), QStringList{u"Bobby|Bob|0"_s});
}

TEST_F(Credits, OlderCrewIsReadFromChildren) {
    EXPECT_EQ(CrewOf("<Credit><FirstName>Ann</FirstName><LastName>Smith</LastName><CreditSubtype>Director"
                     "</CreditSubtype></Credit><CrewMember><Name>Bob Smith</Name><Role>Writer</Role><BirthYear>1960"
                     "</BirthYear><IsUncredited>True</IsUncredited></CrewMember><CrewMember><Name>Caption</Name><Role>"
                     "[DivGroup]</Role></CrewMember>"),
              (QStringList{u"1|Ann Smith|Director|0|False|False|False"_s, u"2|Bob Smith|Writer|1960|False|True|False"_s,
                           u"3|Caption|[DivGroup]|0|False|False|False"_s}));
}

TEST_F(Credits, UnknownJobsAreLearned) {
    Log(kTraceInfo);
    session.CrewRoles.Load(u"Director=Direction"_s);
    CrewOf("<Credit FirstName='A' CreditType='Direction' CreditSubtype='DIRECTOR'/>"
           "<Credit FirstName='B' CreditType='Sound' CreditSubtype='Listener'/>"
           "<Credit FirstName='C' CreditType='Music' CreditSubtype='listener'/>"
           "<Credit FirstName='D' CreditType='Other' CreditSubtype='Anything'/>"
           "<Credit FirstName='E' CreditType='Other' CreditSubtype='Stunts: Driver'/>"
           "<Credit FirstName='F' CreditType='Art' CreditSubtype='a=b'/>"
           "<Credit FirstName='G' CreditType='Art' CreditSubtype='a|b'/>"
           "<Credit FirstName='H' CreditType='' CreditSubtype='None'/>");
    const QString mapping = u"Director=Direction|Listener=Sound|Driver=Stunts"_s;
    EXPECT_EQ(session.CrewRoles.Mapping(), mapping);
    EXPECT_EQ(session.CrewRoles.Category(u"driver"_s), u"Stunts"_s);
    EXPECT_EQ(Rows(u"SELECT InfoValue, Comment FROM DbInfo WHERE InfoName = 'CrewMapping'"),
              QStringList{mapping + u"|Crew role mapping table for crew tree"_s});
    EXPECT_EQ(LogLines().filter(u"Added Listener=Sound to CrewMapString"_s).size(), 1);
    EXPECT_EQ(LogLines().filter(u"Added "_s).size(), 2);
}

TEST_F(Credits, EpisodesHaveTheirOwnTable) {
    pugi::xml_document document;
    document.load_string("<Cast><CastMember><Name>Ann</Name><Role>R</Role><IsRegular>True</IsRegular></CastMember>"
                         "</Cast>");
    ImportCast(session, document.child("Cast"), u"Key_S1"_s, true, true);
    ImportCrew(session, document.child("Cast"), u"Key_S1"_s, true, true);
    EXPECT_EQ(Rows(u"SELECT EpisodeID, Name, Role, Position, IsRegular, IsCast FROM TVCastCrew ORDER BY IsCast"),
              (QStringList{u"Key_S1|Ann|R|1|True|True"_s, u"Key_S1|Ann|R|1|True|False"_s}));
    ImportCast(session, {}, u"Key_S1"_s, true, true);
    EXPECT_EQ(Rows(u"SELECT IsCast FROM TVCastCrew"), QStringList{u"False"_s});
}

} // namespace

} // namespace ostrand
