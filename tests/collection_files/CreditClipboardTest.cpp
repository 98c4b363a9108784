#include "collection_files/CreditClipboard.h"

#include "database/CollectionFixture.h"

#include <cstring>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class CreditClipboard : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.Profiler3 = true;
        session.CrewRoles.Load(CrewRoleMaps::DefaultMapping());
    }
    static CreditRecord Person(const QString &name, const QString &role, const QString &year = u"0"_s) {
        CreditRecord credit;
        credit.name = name;
        credit.role = role;
        credit.birth_year = year;
        return credit;
    }
    QString Cast(const std::vector<CreditRecord> &credits, const QString &title = u"T"_s) {
        return CreditDocument(session, CreditKind::Cast, title, credits, false);
    }
    QString Crew(const std::vector<CreditRecord> &credits) {
        return CreditDocument(session, CreditKind::Crew, u"T"_s, credits, false);
    }
    /// The first element of a list of the document.
    static QString First(const QString &document, const QString &list) {
        const qsizetype start = document.indexOf(u'<' + list + u'>');
        const qsizetype from = document.indexOf(u'<', start + 1);
        return start < 0 ? QString() : document.mid(from, document.indexOf(u'>', from) + 1 - from);
    }
};

TEST_F(CreditClipboard, WholeDocument) {
    CreditRecord credit = Person(u"Mara Ann Hale"_s, u"Keeper"_s, u"1950"_s);
    credit.is_voice = credit.is_credit_only = true;
    EXPECT_EQ(Cast({credit}, u"Amber & Co"_s),
              u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<CastInformation>\r\n"
              "  <Title>Amber &amp; Co</Title>\r\n"
              "  <Actors>\r\n"
              "    <Actor FirstName=\"Mara\" MiddleName=\"Ann\" LastName=\"Hale\" BirthYear=\"1950\" Role=\"Keeper\" "
              "Voice=\"True\" Uncredited=\"False\"/>\r\n"
              "  </Actors>\r\n"
              "  <OSVCast>\r\n"
              "    <CastMember>\r\n"
              "      <Name>Mara Ann Hale</Name>\r\n"
              "      <Role>Keeper</Role>\r\n"
              "      <BirthYear>1950</BirthYear>\r\n"
              "      <IsVoice>True</IsVoice>\r\n"
              "      <IsCreditOnly>True</IsCreditOnly>\r\n"
              "    </CastMember>\r\n"
              "  </OSVCast>\r\n"
              "</CastInformation>\r\n"_s);
}

TEST_F(CreditClipboard, RootsFollowTheProfilerVersion) {
    const struct {
        CreditKind kind;
        bool profiler3;
        QString root, list, own_list;
    } cases[] = {
        {CreditKind::Cast, true, u"CastInformation"_s, u"Actors"_s, u"OSVCast"_s},
        {CreditKind::Cast, false, u"ActorInformation"_s, u"Actors"_s, u"OSVCast"_s},
        {CreditKind::Crew, true, u"CrewInformation"_s, u"Credits"_s, u"OSVCrew"_s},
        {CreditKind::Crew, false, u"CreditInformation"_s, u"Credits"_s, u"OSVCrew"_s},
    };
    for (const auto &c : cases) {
        session.Profiler3 = c.profiler3;
        const QString text = CreditDocument(session, c.kind, u"T"_s, {Person(u"A"_s, u"R"_s)}, false);
        for (const QString &element : {c.root, c.list, c.own_list}) {
            EXPECT_TRUE(text.contains(u'<' + element + u'>')) << qPrintable(element);
        }
    }
}

TEST_F(CreditClipboard, TitlesOfDocuments) {
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('No Title', 'Kein Titel')");
    EXPECT_TRUE(Cast({Person(u"A"_s, u"R"_s)}, {}).contains(u"<Title>Kein Titel</Title>"_s));
    EXPECT_TRUE(Cast({}, u"Amber"_s).contains(u"<Title>empty</Title>"_s));
}

TEST_F(CreditClipboard, Dividers) {
    const struct {
        QString role, name, divider;
    } cases[] = {
        {u"[DivEpisode]"_s, u"1. Dust"_s, u"<Divider Caption=\"1. Dust\" Type=\"Episode\"/>"_s},
        {u"[DivGroup]"_s, u"Crowd"_s, u"<Divider Caption=\"Crowd\" Type=\"Group\"/>"_s},
        {u"[DivEnd]"_s, {}, u"<Divider Caption=\"\" Type=\"EndDiv\"/>"_s},
        {u"[DivTeam]"_s, u"Unit"_s, u"<Divider Caption=\"Unit\" Type=\"Team\"/>"_s},
        {u"[Divider]"_s, QString(70, u'x'), u"<Divider Caption=\"%1\"/>"_s.arg(QString(60, u'x'))},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(First(Cast({Person(c.name, c.role)}), u"Actors"_s), c.divider);
        EXPECT_EQ(First(Crew({Person(c.name, c.role)}), u"Credits"_s), c.divider);
    }
}

TEST_F(CreditClipboard, NamesAndRolesAreCut) {
    const QString first(40, u'f');
    const QString middle(30, u'm');
    const QString last(30, u'l');
    const QString actor = First(Cast({Person(first + u' ' + middle + u' ' + last, QString(50, u'r'))}), u"Actors"_s);
    EXPECT_TRUE(actor.contains(
        u"FirstName=\"%1\" MiddleName=\"%2\" LastName=\"%3\""_s.arg(first.left(35), middle.left(25), last.left(25))))
        << qPrintable(actor);
    EXPECT_TRUE(actor.contains(u"Role=\"%1\""_s.arg(QString(40, u'r')))) << qPrintable(actor);
}

TEST_F(CreditClipboard, NamesAreTheCommonOnes) {
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('M. Hale', 'Mara Hale', 1950)");
    const struct {
        const char *name;
        QString year;
        bool stored;
        QString last, credited_as;
    } cases[] = {
        {"of that year", u"1950"_s, false, u"Hale"_s, u"M. Hale"_s},
        {"of any year", u"0"_s, false, u"Hale"_s, u"M. Hale"_s},
        {"of another year", u"1960"_s, false, u"Hale"_s, u"M. Hale"_s},
        {"as stored", u"1950"_s, true, u"Hale"_s, {}},
    };
    for (const auto &c : cases) {
        const QString actor =
            First(CreditDocument(session, CreditKind::Cast, u"T"_s, {Person(u"M. Hale"_s, u"R"_s, c.year)}, c.stored),
                  u"Actors"_s);
        EXPECT_EQ(actor.contains(u"FirstName=\"Mara\""_s), !c.stored) << c.name;
        EXPECT_EQ(actor.contains(u"CreditedAs=\"M. Hale\""_s), !c.credited_as.isEmpty()) << c.name;
    }
}

TEST_F(CreditClipboard, JobsOfTheCrew) {
    const struct {
        QString role;
        bool uncredited;
        QString attributes;
    } cases[] = {
        {u"Director"_s, false, u"CreditType=\"Direction\" CreditSubtype=\"Director\""_s},
        {u"Line Producer"_s, false,
         u"CreditType=\"Production\" CreditSubtype=\"Custom\" CustomRole=\"Line Producer\""_s},
        {u"Line Producer"_s, true,
         u"CreditType=\"Production\" CreditSubtype=\"Custom\" CustomRole=\"Line Producer (uncredited)\""_s},
        {u"Baker"_s, false, u"CreditType=\"Other\" CreditSubtype=\"Custom\" CustomRole=\"Baker\""_s},
    };
    for (const auto &c : cases) {
        CreditRecord credit = Person(u"Ann Lee"_s, c.role);
        credit.is_uncredited = c.uncredited;
        const QString element = First(Crew({credit}), u"Credits"_s);
        EXPECT_TRUE(element.contains(c.attributes)) << qPrintable(element);
    }
}

TEST_F(CreditClipboard, IsRead) {
    const struct {
        const char *name;
        QString text;
        CreditKind kind;
        const char *list; // null: no such document
    } cases[] = {
        {"cast", u"<CastInformation><Actors/></CastInformation>"_s, CreditKind::Cast, "Actors"},
        {"older cast", u"<ActorInformation><Actors/></ActorInformation>"_s, CreditKind::Cast, "Actors"},
        {"own cast", u"<OSVCast><Actors/></OSVCast>"_s, CreditKind::Cast, "Actors"},
        {"own cast alone", u"<OSVCast><CastMember/></OSVCast>"_s, CreditKind::Cast, "OSVCast"},
        {"own cast within", u"<CastInformation><OSVCast/></CastInformation>"_s, CreditKind::Cast, "OSVCast"},
        {"both", u"<CastInformation><OSVCast/><Actors/></CastInformation>"_s, CreditKind::Cast, "Actors"},
        {"no list", u"<CastInformation><Title/></CastInformation>"_s, CreditKind::Cast, nullptr},
        {"crew", u"<CrewInformation><Credits/></CrewInformation>"_s, CreditKind::Crew, "Credits"},
        {"older crew", u"<CreditInformation><Credits/></CreditInformation>"_s, CreditKind::Crew, "Credits"},
        {"own crew within", u"<CrewInformation><OSVCrew/></CrewInformation>"_s, CreditKind::Crew, "OSVCrew"},
        {"crew as cast", u"<CrewInformation><Credits/></CrewInformation>"_s, CreditKind::Cast, nullptr},
        {"a cast list without its root", u"<Actors/>"_s, CreditKind::Cast, nullptr},
        {"another encoding told",
         u"<?xml version=\"1.0\" encoding=\"utf-16\"?><ActorInformation><Actors/>"
         "</ActorInformation>"_s,
         CreditKind::Cast, "Actors"},
        {"blanks around", u"\r\n <CastInformation><Actors/></CastInformation>\r\n"_s, CreditKind::Cast, "Actors"},
        {"not closed", u"<CastInformation><Actors>"_s, CreditKind::Cast, nullptr},
        {"no markup", u"Mara Hale"_s, CreditKind::Cast, nullptr},
        {"a declaration alone", u"<?xml version=\"1.0\""_s, CreditKind::Cast, nullptr},
        {"nothing", {}, CreditKind::Cast, nullptr},
    };
    for (const auto &c : cases) {
        pugi::xml_document document;
        const auto list = CreditsOfDocument(c.text, c.kind, document);
        ASSERT_EQ(list.has_value(), c.list != nullptr) << c.name;
        if (list) {
            EXPECT_STREQ(list->name(), c.list) << c.name;
        }
    }
}

} // namespace
} // namespace ostrand
