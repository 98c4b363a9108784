// The crew of a page, by category.
#include "ProducerFixture.h"
#include "skin/TextConversion.h"

#include <QDir>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class CrewTagsTest : public ProducerTest {
protected:
    void Credit(const QString &name, const QString &role, const QString &birth_year = u"NULL"_s) {
        for (const auto &target : {u"CastCrew (ProfileID, "_s, u"TVCastCrew (EpisodeID, "_s}) {
            Run(QString(u"INSERT INTO "_s + target + u"Name, Role, Position, IsCast, IsVoice, BirthYear) VALUES ('"_s +
                        EscapeSql(target.startsWith(u'C') ? profile_id : episode_id) + u"', '"_s + EscapeSql(name) +
                        u"', '"_s + EscapeSql(role) + u"', "_s + QString::number(++position) + u", false, true, "_s +
                        birth_year + u')'));
        }
    }
    static QString Link(const QString &name, const QString &year = {}) {
        return u"<A HREF=\"blank.html?actorid="_s + name + u'|' + year + u"\">"_s + name + u"</A>"_s;
    }
    static QString Entry(const QString &inner) { return u"<NOBREAK>"_s + inner + u"</NOBREAK>"_s; }
    static QString Entries(const QStringList &names) {
        QStringList entries;
        for (const QString &name : names) {
            entries.append(Entry(Link(name)));
        }
        return entries.join(u", "_s);
    }
    QString Standard(const QString &category, const QString &attributes = {}) {
        const QString text = Render(GetDPStandardCrew, attributes, category);
        EXPECT_EQ(Render(GetDPStandardCrew, attributes, category, kEpisode), text) << qPrintable(attributes);
        return text;
    }
    QString Mapped(const QString &attributes = {}) {
        const QString text = Render(GetDPMappedCrew, attributes);
        EXPECT_EQ(Render(GetDPMappedCrew, attributes, {}, kEpisode), text) << qPrintable(attributes);
        return text;
    }

    int position = 0;
};

TEST_F(CrewTagsTest, StandardTagsGoByTheFixedCategories) {
    for (const auto &[name, role] : {std::pair{u"A"_s, u"Director"_s},
                                     {u"B"_s, u"Writer"_s},
                                     {u"C"_s, u"STORY BY"_s},
                                     {u"D"_s, u"Producer"_s},
                                     {u"E"_s, u"Cinematographer"_s},
                                     {u"F"_s, u"Film Editor"_s},
                                     {u"G"_s, u"Composer"_s},
                                     {u"H"_s, u"Sound Designer"_s},
                                     {u"I"_s, u"Art Director"_s},
                                     {u"J"_s, u"Story Editor"_s}, // the user's mapping knows it, the fixed one not
                                     {u"K"_s, u"Gaffer"_s},
                                     {u"L"_s, {}}}) {
        Credit(name, role);
    }
    const struct {
        QString category;
        QStringList names;
    } cases[] = {{u"Direction"_s, {u"A"_s}},
                 {u"Writing"_s, {u"B"_s, u"C"_s}},
                 {u"Production"_s, {u"D"_s}},
                 {u"Cinematography"_s, {u"E"_s}},
                 {u"Film Editing"_s, {u"F"_s}},
                 {u"Music"_s, {u"G"_s}},
                 {u"Sound"_s, {u"H"_s}},
                 {u"Art"_s, {u"I"_s}},
                 {u"Other"_s, {u"J"_s, u"K"_s, u"L"_s}},
                 {u"Catering"_s, {}}};
    for (const auto &c : cases) {
        EXPECT_EQ(Standard(c.category), Entries(c.names)) << qPrintable(c.category);
    }
    EXPECT_EQ(Standard(u"Direction"_s, u"Category=\"Writing\""_s), Entries({u"A"_s}));
}

TEST_F(CrewTagsTest, TheCrewTagGoesByTheUsersCategories) {
    session.CrewRoles.Load(u"Director=Head|Gaffer=Light|Story Editor=WRITING|Writer=Writing"_s);
    Credit(u"A"_s, u"Director"_s);
    Credit(u"B"_s, u"gaffer"_s);
    Credit(u"C"_s, u"Story Editor"_s);
    Credit(u"D"_s, u"Writer"_s);
    Credit(u"E"_s, u"Producer"_s);
    const struct {
        QString attributes;
        QStringList names;
    } cases[] = {
        {{}, {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}},
        {u"Category=\"Head\""_s, {u"A"_s}},
        {u"Category=\"HEAD\""_s, {u"A"_s}},
        {u"Category=\"Light\""_s, {u"B"_s}},
        {u"Category=\"writing\""_s, {u"C"_s, u"D"_s}},
        {u"Category=\"Other\""_s, {u"E"_s}},
        {u"Category=\"Direction\""_s, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Mapped(c.attributes), Entries(c.names)) << qPrintable(c.attributes);
    }
}

TEST_F(CrewTagsTest, AttributesShapeAnEntry) {
    Credit(u"Ann Lee"_s, u"Director"_s, u"1950"_s);
    Credit(u"Bo Tarn"_s, {});
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Ann Lee', 'Anna Lee', 1950)");
    folder.Write(u"heads/Anna Lee(1950).jpg"_s, "x");
    const QString ann = Link(u"Ann Lee"_s, u"1950"_s);
    const QString bo = Link(u"Bo Tarn"_s);
    const QString image =
        u"<IMG SRC='"_s + PathToFileUrl(session.HeadshotPath + u"Anna Lee(1950).jpg"_s) + u"' WIDTH="_s;
    const QString plain = Entry(ann) + u", "_s + Entry(bo);
    const QString common = Entry(Link(u"Anna Lee"_s, u"1950"_s)) + u", "_s + Entry(bo);
    const struct {
        QString attributes;
        QString text;
    } cases[] = {
        {{}, plain},
        // No test of an empty role, and no markers of its kind.
        {u"ShowRoles=\"yes\""_s, Entry(ann + u"...Director"_s) + u", "_s + Entry(bo + u"..."_s)},
        {u"ShowRoles=\"yes\" RoleTypes=\"yes\" RoleDivIfBlank=\"no\""_s,
         Entry(ann + u"...Director"_s) + u", "_s + Entry(bo + u"..."_s)},
        {u"ShowRoles=\"yes\" RolesFirst=\"yes\""_s, Entry(u"Director..."_s + ann) + u", "_s + Entry(u"..."_s + bo)},
        {u"ShowRoles=\"yes\" RoleDivider=\" / \""_s, Entry(ann + u" / Director"_s) + u", "_s + Entry(bo + u" / "_s)},
        {u"ShowRoles=\"yes\" RoleClass=\"r\""_s, Entry(ann + u"...<SPAN CLASS=\"r\">Director</SPAN>"_s) + u", "_s +
                                                     Entry(bo + u"...<SPAN CLASS=\"r\"></SPAN>"_s)},
        {u"RoleClass=\"r\" RolesFirst=\"yes\""_s, plain},
        {u"NameClass=\"n\""_s, Entry(u"<SPAN CLASS=\"n\">"_s + ann + u"</SPAN>"_s) + u", "_s +
                                   Entry(u"<SPAN CLASS=\"n\">"_s + bo + u"</SPAN>"_s)},
        {u"Divider=\"BREAK\""_s, Entry(ann) + u"<br/>"_s + Entry(bo)},
        {u"Prefix=\"P: \""_s, u"P: "_s + plain},
        {u"Suffix=\"BREAK\""_s, plain + u"<br/>"_s},
        {u"Prefix=\"<p>\" Suffix=\"</p>\" Divider=\"; \""_s, u"<p>"_s + Entry(ann) + u"; "_s + Entry(bo) + u"</p>"_s},
        {u"UseCommonName=\"yes\""_s, common},
        {u"AsCredited=\"no\""_s, common},
        {u"ColorNames=\"yes\" MaxList=\"x\""_s,
         Entry(u"<A HREF=\"blank.html?actorid=Ann Lee|1950\"><FONT COLOR='#000080'>Ann</FONT> "
               "<FONT COLOR='#008000'>Lee</FONT></A>"_s) +
             u", "_s +
             Entry(u"<A HREF=\"blank.html?actorid=Bo Tarn|\"><FONT COLOR='#000080'>Bo</FONT> "
                   "<FONT COLOR='#008000'>Tarn</FONT></A>"_s)},
        {u"ShowBirthYears=\"yes\""_s,
         Entry(u"<A HREF=\"blank.html?actorid=Ann Lee|1950\">Ann Lee (1950)</A>"_s) + u", "_s + Entry(bo)},
        {u"ShowHeadshot=\"yes\""_s, Entry(image + u"30>  "_s + ann) + u", "_s + Entry(bo)},
        {u"ShowHeadshot=\"yes\" HeadshotWidth=\"9\" HeadshotRight=\"yes\""_s,
         Entry(ann + u' ' + image + u"9>"_s) + u", "_s + Entry(bo)},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Mapped(c.attributes), c.text) << qPrintable(c.attributes);
    }
}

TEST_F(CrewTagsTest, NamesAndRolesStandAsTheyAre) {
    const QString name = u"\u00C9mile \"Bo\" O'Brien </script>"_s;
    Credit(name, u"Key & <b>'Grip'</b>"_s);
    Credit({}, {});
    EXPECT_EQ(Standard(u"Other"_s, u"ShowRoles=\"yes\" UseCommonName=\"yes\" ShowHeadshot=\"yes\""_s),
              Entry(Link(name) + u"...Key & <b>'Grip'</b>"_s) + u", "_s + Entry(Link({}) + u"..."_s));
    options.offline = true;
    options.chkGenerateCrosslinks = true;
    const auto site_link = [](const QString &id, const QString &text) {
        return u"<a href=\"#\" onclick=\"displayCrossLink('person-"_s + id + u"'); return false;\">"_s + text +
               u"</a>"_s;
    };
    EXPECT_EQ(Mapped(), Entry(site_link(u"\u00E9mile_bo_obrien_script"_s, name)) + u", "_s + Entry(site_link({}, {})));
}

TEST_F(CrewTagsTest, PrefixAndSuffixNeedSomethingBetween) {
    EXPECT_EQ(Mapped(u"Prefix=\"P\" Suffix=\"S\""_s), QString());
    Credit(u"A"_s, u"Director"_s);
    EXPECT_EQ(Standard(u"Music"_s, u"Prefix=\"P\" Suffix=\"S\""_s), QString());
}

TEST_F(CrewTagsTest, CaptionsStandInEveryCategory) {
    Credit(u"Unit"_s, u"[DivGroup]"_s);
    Credit(u"A"_s, u"Director"_s);
    Credit(u"B"_s, u"Composer"_s);
    Credit(u"Unit 2"_s, u"[DivTeam]"_s);
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Unit', 'Other unit', 0)");
    EXPECT_EQ(Standard(u"Direction"_s, u"UseCommonName=\"yes\""_s),
              Entry(u"Unit"_s) + u", "_s + Entries({u"A"_s}) + u", "_s + Entry(u"Unit 2"_s));
    EXPECT_EQ(Standard(u"Art"_s, u"DividerClass=\"d\""_s),
              Entry(u"<SPAN CLASS=\"d\">Unit</SPAN>"_s) + u", "_s + Entry(u"<SPAN CLASS=\"d\">Unit 2</SPAN>"_s));
    EXPECT_EQ(Standard(u"Direction"_s, u"ShowNoDividers=\"yes\""_s), Entries({u"A"_s}));
    EXPECT_EQ(Standard(u"Art"_s, u"ShowNoDividers=\"yes\""_s), QString());
}

TEST_F(CrewTagsTest, OneMoreThanTheLimitIsPrinted) {
    Credit(u"Unit"_s, u"[Divider]"_s);
    for (const auto &name : {u"A"_s, u"B"_s, u"C"_s, u"D"_s}) {
        Credit(name, u"Director"_s);
        Credit(name, u"Composer"_s);
    }
    const QString unit = Entry(u"Unit"_s) + u", "_s;
    const struct {
        QString limit;
        QStringList names;
    } cases[] = {{u"0"_s, {u"A"_s, u"B"_s, u"C"_s, u"D"_s}},
                 {u"1"_s, {u"A"_s, u"B"_s}},
                 {u"3"_s, {u"A"_s, u"B"_s, u"C"_s, u"D"_s}},
                 {u"many"_s, {u"A"_s, u"B"_s, u"C"_s, u"D"_s}}};
    for (const auto &c : cases) {
        EXPECT_EQ(Standard(u"Music"_s, u"MaxList=\""_s + c.limit + u'"'), unit + Entries(c.names));
    }
}

TEST_F(CrewTagsTest, AFailureIsShownUnderTheCategory) {
    Credit(u"A"_s, u"Director"_s);
    QDir().mkpath(session.DataFolder);
    services.dialogs.ExpectMessage(u"Type mismatch: ShowRoles=\"perhaps\""_s, MessageIcon::Warning, MessageAnswer::Ok,
                                   u"CREW_Film Editing"_s);
    EXPECT_EQ(Render(GetDPStandardCrew, u"ShowRoles=\"perhaps\" Prefix=\"P\""_s, u"Film Editing"_s), QString());
    services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"CREW_Head"_s);
    EXPECT_EQ(Render(GetDPMappedCrew, u"AsCredited=\"perhaps\" Category=\"Head\""_s), QString());
    services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"CREW_"_s);
    EXPECT_EQ(Render(GetDPMappedCrew, u"ShowNoDividers=\"perhaps\""_s), QString());
}

TEST_F(CrewTagsTest, WhatWasWrittenBeforeAFailureCounts) {
    Credit(u"Unit"_s, u"[Divider]"_s);
    Credit(u"A"_s, u"Director"_s);
    Run(u"DROP TABLE Alias");
    services.dialogs.ExpectMessage({}, MessageIcon::Warning, MessageAnswer::Ok, u"CREW_Direction"_s);
    EXPECT_EQ(Render(GetDPStandardCrew, u"UseCommonName=\"yes\" Prefix=\"P\""_s, u"Direction"_s),
              Entry(u"Unit"_s) + u", "_s);
}

TEST_F(CrewTagsTest, AHugeCrewIsRenderedByLookUps) {
    {
        const sql::Database::Bracket bracket(*session.Database);
        for (int i = 0; i < 10000; ++i) {
            Run(QString(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('Key_1', 'Person %1', "
                        "'Gaffer', %1, false)"_s)
                    .arg(i));
        }
    }
    EXPECT_EQ(
        Render(GetDPStandardCrew, u"ShowHeadshot=\"yes\" UseCommonName=\"yes\""_s, u"Other"_s).count(u"<NOBREAK>"),
        10000);
    EXPECT_EQ(skin.headshots.Reads(), 1);
    Run(u"DELETE FROM CastCrew WHERE Position > 2");
    EXPECT_EQ(Scans([&] {
                  Render(GetDPMappedCrew, u"UseCommonName=\"yes\""_s);
                  Render(GetDPStandardCrew, {}, u"Other"_s, kEpisode);
              }),
              QStringList());
}

} // namespace
} // namespace ostrand
