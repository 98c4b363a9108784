#include "collection_files/CreditReader.h"

#include "collection_files/ElementValues.h"
#include "people/Name.h"
#include "xml/XmlNodes.h"

#include <QStringList>

#include <string_view>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

bool Is(pugi::xml_node element, std::string_view name) {
    return name == element.name();
}

bool ReadFlag(pugi::xml_node element, const char *attribute) {
    return ReadBoolean(XmlAttribute(element, attribute, u"False"_s));
}

bool ReadChildFlag(pugi::xml_node element, const char *child) {
    return ReadBoolean(XmlChildText(element, child, u"False"_s));
}

void ReadNameAttributes(pugi::xml_node element, Credit &credit) {
    Name name;
    name.SetFirstName(XmlAttribute(element, "FirstName"));
    name.SetMiddleName(XmlAttribute(element, "MiddleName"));
    name.SetLastName(XmlAttribute(element, "LastName"));
    name.SetBirthYear(ReadNumber(XmlAttribute(element, "BirthYear", u"0"_s)));
    credit.full_name = name.FullName();
    credit.birth_year = name.BirthYear();
    credit.credited_as = XmlAttribute(element, "CreditedAs");
}

void ReadNameChildren(pugi::xml_node element, Credit &credit) {
    Name name;
    name.SetFirstName(XmlChildText(element, "FirstName"));
    name.SetMiddleName(XmlChildText(element, "MiddleName"));
    name.SetLastName(XmlChildText(element, "LastName"));
    if (const pugi::xml_node whole = element.child("Name")) {
        name.SetFullName(XmlNodeText(whole));
    }
    name.SetBirthYear(ReadNumber(XmlChildText(element, "BirthYear", u"0"_s)));
    credit.full_name = name.FullName();
    credit.birth_year = name.BirthYear();
}

Credit ReadDivider(pugi::xml_node element) {
    Credit credit;
    credit.is_divider = true;
    credit.full_name = XmlAttribute(element, "Caption");
    const QString type = XmlAttribute(element, "Type");
    if (type == u"Episode"_s) {
        credit.role = u"[DivEpisode]"_s;
    } else if (type == u"Group"_s) {
        credit.role = u"[DivGroup]"_s;
    } else if (type == u"Team"_s) {
        credit.role = u"[DivTeam]"_s;
    } else if (type == u"EndDiv"_s) {
        credit.role = u"[DivEnd]"_s;
        credit.full_name.clear();
    } else {
        credit.role = u"[Divider]"_s;
    }
    return credit;
}

void RemoveEach(QString &role, std::initializer_list<QLatin1String> texts) {
    for (const QLatin1String text : texts) {
        role.remove(text);
    }
}

void CleanUncredited(Credit &credit) {
    if (!credit.role.contains(QLatin1String("(uncr"), Qt::CaseInsensitive)) {
        return;
    }
    credit.is_uncredited = true;
    RemoveEach(credit.role, {QLatin1String(" (uncredited)"), QLatin1String(" (Uncredited)"), QLatin1String(" (uncr)"),
                             QLatin1String(" (uncr.)"), QLatin1String(" (uncred.)"), QLatin1String("(uncredited)")});
}

void CleanCastRole(Credit &credit) {
    if (!credit.role.contains(u'(')) {
        return;
    }
    if (credit.role.contains(QLatin1String("(voice)"), Qt::CaseInsensitive)) {
        credit.is_voice = true;
        RemoveEach(credit.role, {QLatin1String(" (Voice)"), QLatin1String(" (voice)"), QLatin1String("(voice)")});
    }
    CleanUncredited(credit);
    constexpr QLatin1String kCreditOnly("(credit only)");
    if (credit.role.contains(kCreditOnly, Qt::CaseInsensitive)) {
        credit.is_credit_only = true;
        credit.role = credit.role.remove(kCreditOnly, Qt::CaseInsensitive).trimmed();
    }
}

Credit ReadActor(pugi::xml_node element) {
    Credit credit;
    ReadNameAttributes(element, credit);
    credit.role = XmlAttribute(element, "Role");
    credit.is_voice = ReadFlag(element, "Voice");
    credit.is_uncredited = ReadFlag(element, "Uncredited");
    return credit;
}

Credit ReadPlainCast(pugi::xml_node element) {
    Credit credit;
    ReadNameChildren(element, credit);
    credit.role = XmlChildText(element, "Role");
    credit.is_voice = ReadChildFlag(element, "IsVoice");
    credit.is_uncredited = ReadChildFlag(element, "IsUncredited");
    credit.is_regular = ReadChildFlag(element, "IsRegular");
    credit.is_credit_only = ReadChildFlag(element, "IsCreditOnly");
    if (credit.role.startsWith(u"[Div"_s)) {
        credit.is_divider = true;
        credit.full_name = credit.role == u"[DivGroup]"_s ? XmlChildText(element, "Name") : QString();
    }
    return credit;
}

Credit ReadCrewMember(pugi::xml_node element) {
    Credit credit;
    ReadNameAttributes(element, credit);
    credit.role = XmlAttribute(element, "CreditSubtype");
    if (const QString custom = XmlAttribute(element, "CustomRole"); !custom.isEmpty()) {
        credit.role = custom;
    }
    credit.credit_type = XmlAttribute(element, "CreditType");
    // A job outside the known types tells its type before a colon.
    const qsizetype colon = credit.role.indexOf(u": "_s);
    if (credit.credit_type == u"Other"_s && colon >= 0) {
        credit.credit_type = credit.role.left(colon);
        credit.role.remove(0, colon + 2);
    }
    return credit;
}

Credit ReadPlainCrew(pugi::xml_node element) {
    Credit credit;
    ReadNameChildren(element, credit);
    credit.role = XmlChildText(element, "Role", XmlChildText(element, "CreditSubtype"));
    credit.is_uncredited = ReadChildFlag(element, "IsUncredited");
    credit.is_regular = ReadChildFlag(element, "IsRegular");
    credit.is_divider = credit.role.startsWith(u"[Div"_s);
    return credit;
}

/// Comments and stray texts are no elements; an element with attributes is known by its name.
template <typename Member, typename Plain>
std::optional<Credit> ReadCredit(pugi::xml_node element, std::string_view member_name, Member member, Plain plain) {
    if (element.type() != pugi::node_element) {
        return std::nullopt;
    }
    if (!element.first_attribute()) {
        return plain(element);
    }
    if (Is(element, "Divider")) {
        return ReadDivider(element);
    }
    return Is(element, member_name) ? std::optional(member(element)) : std::nullopt;
}

} // namespace

std::optional<Credit> ReadCastCredit(pugi::xml_node element) {
    auto credit = ReadCredit(element, "Actor", ReadActor, ReadPlainCast);
    if (credit) {
        CleanCastRole(*credit);
    }
    return credit;
}

std::optional<Credit> ReadCrewCredit(pugi::xml_node element) {
    auto credit = ReadCredit(element, "Credit", ReadCrewMember, ReadPlainCrew);
    if (credit) {
        CleanUncredited(*credit);
    }
    return credit;
}

} // namespace ostrand
