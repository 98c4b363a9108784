#include "SkinFixture.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SystemTags : public SkinTest {};

TEST_F(SystemTags, TheLanguageIsThatOfTheSystem) {
    session.LocalLanguage = u"es-ES"_s;
    const struct {
        QString system, name;
    } cases[] = {
        {u"de-DE"_s, u"German"_s}, {u"de-AT"_s, u"German"_s},     {u"en-US"_s, u"English"_s}, {u"fr-CA"_s, u"French"_s},
        {u"nl-NL"_s, u"Dutch"_s},  {u"pt-BR"_s, u"Protuguese"_s}, {u"pt"_s, u"Protuguese"_s}, {u"DE_ch"_s, u"German"_s},
        {u"es-ES"_s, u"es-ES"_s},  {u"den-XX"_s, u"es-ES"_s},     {{}, u"es-ES"_s},
    };
    for (const auto &c : cases) {
        services.locale.default_language = c.system;
        EXPECT_EQ(Produce(GetOSVProgramLanguage, Row()), c.name) << qPrintable(c.system);
    }
}

TEST_F(SystemTags, TellTheProgramAndItsFiles) {
    session.AppVersion = u"4.12.345"_s;
    session.DataFolder = u"/data of me"_s;
    session.CoverPath = u"/covers/o'h/"_s;
    session.HeadshotPath = u"/heads/"_s;
    session.DatabaseFile = u"/some where/My Films.mdb"_s;
    skin.ActiveSkin = u"Plain"_s;
    const struct {
        const char *name;
        TagProducer producer;
        QString text;
    } cases[] = {
        {"PROGRAM_BUILD", GetProgramBuild, u"345"_s},
        {"PROGRAM_VERSION", GetProgramVersion, u"4.12"_s},
        {"PROGRAM_LOCATION", GetProgramLocation, u"file:///data%20of%20me/"_s},
        {"COVER_PATH", GetCoverPath, u"file:///covers/o%27h/"_s},
        {"HEADSHOT_PATH", GetHeadshotPath, u"file:///heads/"_s},
        {"DB_NAME", GetDbName, u"My Films"_s},
        {"SKIN_NAME", GetSkinName, u"Plain"_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Produce(c.producer, Row()), c.text) << c.name;
    }
    session.DatabaseFile = u"/x/abc"_s;
    EXPECT_EQ(Produce(GetDbName, Row()), QString());
}

TEST_F(SystemTags, TellTheDatabasesSettings) {
    Run(u"DELETE FROM DbInfo WHERE InfoName = 'Owner'");
    EXPECT_EQ(Produce(GetDbSetting, Row(), u"Owner"_s), QString());
    WriteDbInfo(session, u"Owner"_s, u"Mara Hale"_s);
    WriteDbInfo(session, u"Schema"_s, u"90"_s);
    EXPECT_EQ(Produce(GetDbSetting, Row(), u"Owner"_s), u"Mara Hale"_s);
    EXPECT_EQ(Produce(GetDbSetting, Row(), u"Schema"_s), u"90"_s);
}

TEST_F(SystemTags, TranslateAText) {
    TranslateAs(u"Cast"_s, u"Besetzung"_s);
    EXPECT_EQ(Produce(GetTranslation, Row(), {}, u"<OSV NAME=\"TRANSLATION\" Original=\"Cast\">"_s), u"Besetzung"_s);
    EXPECT_EQ(Produce(GetTranslation, Row(), {}, u"<OSV NAME=\"TRANSLATION\" Original=\"Crew\">"_s), u"Crew"_s);
    EXPECT_EQ(Produce(GetTranslation, Row(), {}, u"<OSV NAME=\"TRANSLATION\">"_s), QString());
    EXPECT_EQ(Produce(GetTranslation, Row(), {}, u"<OSV NAME=\"TRANSLATION\" Original=\"No\">"_s), u"false"_s)
        << "the rules of attribute values hold here too";
}

} // namespace
} // namespace ostrand
