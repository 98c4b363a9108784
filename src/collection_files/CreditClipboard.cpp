#include "collection_files/CreditClipboard.h"

#include "people/LinkedNames.h"
#include "people/Name.h"
#include "shell/Session.h"
#include "xml/XmlLoader.h"
#include "xml/XmlNodes.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kCaptionLength = 60;
constexpr qsizetype kFirstNameLength = 35;
constexpr qsizetype kNameLength = 25;
constexpr qsizetype kRoleLength = 40;

/// The elements of a kind.
struct Elements {
    const char *root;
    const char *older_root;
    const char *credits;
    const char *credit;
    const char *own_credits;
    const char *own_credit;
};

const Elements &ElementsOf(CreditKind kind) {
    static constexpr Elements kCast = {"CastInformation", "ActorInformation", "Actors",
                                       "Actor",           "OSVCast",          "CastMember"};
    static constexpr Elements kCrew = {"CrewInformation", "CreditInformation", "Credits",
                                       "Credit",          "OSVCrew",           "CrewMember"};
    return kind == CreditKind::Cast ? kCast : kCrew;
}

QString TrueFalse(bool truth) {
    return truth ? u"True"_s : u"False"_s;
}

/// Empty for a divider that has no type.
QString DividerType(const QString &role) {
    static constexpr std::pair<QLatin1String, QLatin1String> kTypes[] = {{"[DivEpisode]"_L1, "Episode"_L1},
                                                                         {"[DivGroup]"_L1, "Group"_L1},
                                                                         {"[DivEnd]"_L1, "EndDiv"_L1},
                                                                         {"[DivTeam]"_L1, "Team"_L1}};
    for (const auto &[divider, type] : kTypes) {
        if (role.compare(divider, Qt::CaseInsensitive) == 0) {
            return type;
        }
    }
    return {};
}

void AddDivider(pugi::xml_node parent, const CreditRecord &credit) {
    const pugi::xml_node divider = XmlAddElement(parent, "Divider", 2);
    XmlSetAttribute(divider, "Caption", credit.name.left(kCaptionLength));
    if (const QString type = DividerType(credit.role); !type.isEmpty()) {
        XmlSetAttribute(divider, "Type", type);
    }
}

void SetName(pugi::xml_node element, const CreditRecord &credit, const QString &used_name) {
    Name name;
    name.SetFullName(used_name);
    XmlSetAttribute(element, "FirstName", name.FirstName().left(kFirstNameLength));
    XmlSetAttribute(element, "MiddleName", name.MiddleName().left(kNameLength));
    XmlSetAttribute(element, "LastName", name.LastName().left(kNameLength));
    XmlSetAttribute(element, "BirthYear", credit.birth_year.isEmpty() ? u"0"_s : credit.birth_year);
}

void SetActor(pugi::xml_node element, const CreditRecord &credit) {
    XmlSetAttribute(element, "Role", credit.role.left(kRoleLength));
    XmlSetAttribute(element, "Voice", TrueFalse(credit.is_voice));
    XmlSetAttribute(element, "Uncredited", TrueFalse(credit.is_uncredited));
}

void SetCrewMember(const Session &session, pugi::xml_node element, const CreditRecord &credit) {
    const QString type = CrewRoleMaps::CreditType(credit.role);
    if (!type.isEmpty()) {
        XmlSetAttribute(element, "CreditType", type);
        XmlSetAttribute(element, "CreditSubtype", credit.role);
        return;
    }
    const QString category = session.CrewRoles.Category(credit.role);
    XmlSetAttribute(element, "CreditType", category.isEmpty() ? u"Other"_s : category);
    XmlSetAttribute(element, "CreditSubtype", u"Custom"_s);
    XmlSetAttribute(element, "CustomRole", credit.role + (credit.is_uncredited ? u" (uncredited)"_s : QString()));
}

void AddOwnCredit(pugi::xml_node parent, CreditKind kind, const CreditRecord &credit) {
    const bool cast = kind == CreditKind::Cast;
    const pugi::xml_node element = XmlAddElement(parent, ElementsOf(kind).own_credit, 2);
    const auto add = [&](const char *name, const QString &text) {
        XmlAddTextElement(element, name, text, 3, FieldType::Text, true);
    };
    const auto flag = [](bool on) { return on ? u"True"_s : QString(); };
    add("Name", credit.name);
    add("Role", credit.role);
    add("BirthYear", credit.birth_year == "0"_L1 ? QString() : credit.birth_year);
    add("IsUncredited", flag(credit.is_uncredited));
    add("IsVoice", flag(cast && credit.is_voice));
    add("IsCreditOnly", flag(cast && credit.is_credit_only));
    add("IsRegular", flag(credit.is_regular));
    XmlAddIndent(element, 2);
}

QStringList NamesOf(const std::vector<CreditRecord> &credits) {
    QStringList names;
    for (const CreditRecord &credit : credits) {
        names += credit.name;
    }
    return names;
}

/// A text of characters needs no encoding told.
QString WithoutDeclaration(const QString &text) {
    const QString trimmed = text.trimmed();
    const qsizetype end = trimmed.startsWith("<?xml"_L1) ? trimmed.indexOf("?>"_L1) : -1;
    return end < 0 ? trimmed : trimmed.mid(end + 2);
}

} // namespace

QString CreditDocument(Session &session, CreditKind kind, const QString &title,
                       const std::vector<CreditRecord> &credits, bool stored_names) {
    const Elements &elements = ElementsOf(kind);
    const LinkedNames names(session, stored_names ? QStringList() : NamesOf(credits));
    pugi::xml_document document;
    const pugi::xml_node root = document.append_child(session.Profiler3 ? elements.root : elements.older_root);
    XmlAddTextElement(root, "Title",
                      credits.empty()   ? u"empty"_s
                      : title.isEmpty() ? Translate(session, u"No Title"_s)
                                        : title,
                      1);
    const pugi::xml_node list = XmlAddElement(root, elements.credits, 1);
    const pugi::xml_node own_list = XmlAddElement(root, elements.own_credits, 1);
    for (const CreditRecord &credit : credits) {
        AddOwnCredit(own_list, kind, credit);
        if (credit.IsDivider()) {
            AddDivider(list, credit);
            continue;
        }
        const QString used = names.Resolved(credit.name, credit.birth_year.toInt());
        const pugi::xml_node element = XmlAddElement(list, elements.credit, 2);
        SetName(element, credit, used);
        if (used != credit.name) {
            XmlSetAttribute(element, "CreditedAs", credit.name);
        }
        if (kind == CreditKind::Cast) {
            SetActor(element, credit);
        } else {
            SetCrewMember(session, element, credit);
        }
    }
    if (!credits.empty()) {
        XmlAddIndent(list, 1);
        XmlAddIndent(own_list, 1);
    }
    XmlAddIndent(root, 0);
    return QString::fromUtf8(XmlDocumentBytes(u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"_s, root));
}

std::optional<pugi::xml_node> CreditsOfDocument(const QString &text, CreditKind kind, pugi::xml_document &document) {
    const Elements &elements = ElementsOf(kind);
    if (!XmlLoadBytes(WithoutDeclaration(text).toUtf8(), document).ok) {
        return std::nullopt;
    }
    const pugi::xml_node root = document.document_element();
    const std::string_view name = root.name();
    if (name != elements.root && name != elements.older_root && name != elements.own_credits) {
        return std::nullopt;
    }
    if (const pugi::xml_node list = root.child(elements.credits)) {
        return list;
    }
    if (name == elements.own_credits) {
        return root;
    }
    const pugi::xml_node own_list = root.child(elements.own_credits);
    return own_list ? std::optional(own_list) : std::nullopt;
}

} // namespace ostrand
