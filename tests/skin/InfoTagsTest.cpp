// Additional information and the list of crew categories.
#include "ProducerFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class InfoTagsTest : public ProducerTest {
protected:
    void Info(const QString &id, const QString &name, const QString &value) {
        Run(QString(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('"_s + EscapeSql(id) +
                    u"', '"_s + EscapeSql(name) + u"', '"_s + EscapeSql(value) + u"')"_s));
    }
};

TEST_F(InfoTagsTest, AdditionalInformationIsOneValueOrAList) {
    for (const auto &id : {profile_id, episode_id}) {
        Info(id, u"Owner's shelf"_s, u"<i>7</i>"_s);
        Info(id, u"Bonus"_s, u"one\r\ntwo\r\n"_s);
    }
    Info(u"Key_2"_s, u"Bonus"_s, u"another title's"_s);
    const QString bonus = u"<b>Bonus</b><br/>one\r\ntwo\r\n"_s;
    const QString shelf = u"<b>Owner's shelf</b><br/><i>7</i>"_s;
    TranslateTo(u"Bonus"_s, u"Zugabe"_s);
    const struct {
        QString attributes;
        QString text;
    } cases[] = {
        {{}, bonus + u"<br/>"_s + shelf},
        {u"Divider=\"; \""_s, bonus + u"; "_s + shelf},
        {u"Translate=\"no\""_s, bonus + u"<br/>"_s + shelf},
        {u"Translate=\"yes\""_s, u"<b>Zugabe</b><br/>one\r\ntwo\r\n<br/>"_s + shelf},
        {u"InfoName=\"Bonus\""_s, u"one<br/>two<br/>"_s},
        {u"InfoName=\"bonus\" Translate=\"yes\" Divider=\"; \""_s, u"one<br/>two<br/>"_s},
        {u"InfoName=\"Owner's shelf\""_s, u"<i>7</i>"_s},
        {u"InfoName=\"None\""_s, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Render(GetOSVAdditionalInfo, c.attributes), c.text) << qPrintable(c.attributes);
        EXPECT_EQ(Render(GetOSVAdditionalInfo, c.attributes, {}, kEpisode), c.text) << qPrintable(c.attributes);
    }
    EXPECT_EQ(Scans([&] {
                  Render(GetOSVAdditionalInfo);
                  Render(GetOSVAdditionalInfo, u"InfoName=\"Bonus\""_s);
              }),
              QStringList());
}

TEST_F(InfoTagsTest, WithoutInformationThereIsNoText) {
    EXPECT_EQ(Render(GetOSVAdditionalInfo), QString());
    Info(profile_id, u"Empty"_s, {});
    EXPECT_EQ(Render(GetOSVAdditionalInfo), u"<b>Empty</b><br/>"_s);
    EXPECT_EQ(Render(GetOSVAdditionalInfo, u"InfoName=\"Empty\""_s), QString());
}

TEST_F(InfoTagsTest, InformationHasNoGuardOfItsOwn) {
    Info(profile_id, u"Bonus"_s, u"x"_s);
    EXPECT_THROW(Render(GetOSVAdditionalInfo, u"Translate=\"perhaps\""_s), SkinFailure);
    Run(u"DROP TABLE AdditionalInfo");
    EXPECT_THROW(Render(GetOSVAdditionalInfo), sql::SqlError);
}

TEST_F(InfoTagsTest, CategoriesStandInTheOrderOfTheirFirstAppearance) {
    const struct {
        QString mapping;
        QString attributes;
        QString text;
    } cases[] = {
        {CrewRoleMaps::DefaultMapping(),
         {},
         u"Direction,Writing,Production,Cinematography,Film Editing,Music,Sound,Art"_s},
        {u"Writer=Words|Director=Head|Story By=Words|Gaffer=Light"_s, {}, u"Words,Head,Light"_s},
        {u"Writer=Words|Director=Head|Story By=Words|Gaffer=Light"_s, u"Divider=\" | \""_s, u"Words | Head | Light"_s},
        {u"Writer=Words|Director=Head"_s, u"Divider=\"break\""_s, u"Words<br/>Head"_s},
        {u"Writer=Words"_s, {}, u"Words"_s},
        {u""_s, {}, {}},
    };
    for (const auto &c : cases) {
        session.CrewRoles.Load(c.mapping);
        EXPECT_EQ(Render(GetOSVCrewCategories, c.attributes), c.text);
        EXPECT_EQ(Render(GetOSVCrewCategories, c.attributes, {}, kEpisode), c.text);
    }
}

} // namespace
} // namespace ostrand
