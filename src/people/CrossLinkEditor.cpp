#include "people/CrossLinkEditor.h"

#include "base/Dates.h"
#include "database/DatabaseFunctions.h"
#include "database/RecordOperations.h"
#include "people/CrossLinks.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"
#include "sql/Collation.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr int kLatestYear = 9999;

QString OfYear(int birth_year) {
    return u" AND BirthYear = "_s + QString::number(birth_year);
}

void DeleteAlias(Session &session, const QString &alias, int birth_year) {
    session.Database->Execute(
        QString(u"DELETE FROM Alias WHERE AliasName = '"_s + EscapeSql(alias) + u'\'' + OfYear(birth_year)));
}

void MoveAlias(Session &session, const QString &alias, const CommonNames::Row &common) {
    session.Database->Execute(QString(u"INSERT INTO Alias (AliasName, CommonName, Comment, BirthYear) VALUES ('"_s +
                                      EscapeSql(alias) + u"', '"_s + EscapeSql(common.name) + u"', '', '"_s +
                                      QString::number(common.birth_year) + u"')"_s));
}

} // namespace

CrossLinkEditor::CrossLinkEditor(Session &session) : session_(session) {
    listCommonNames.SetHeaders({Text(u"CommonName"), Text(u"BirthYear")});
    Load();
}

QString CrossLinkEditor::Text(const char16_t *english) {
    return Translate(session_, QString::fromUtf16(english));
}

void CrossLinkEditor::Load() {
    std::vector<CommonNames::Row> rows;
    sql::Recordset names = session_.Database->OpenRecordset(u"SELECT DISTINCT CommonName, BirthYear FROM Alias");
    for (; !names.Eof(); names.MoveNext()) {
        rows.push_back({names.Text(0), int(names.Get(1).Integer())});
    }
    listCommonNames.Assign(std::move(rows));
    Select(-1);
}

void CrossLinkEditor::Select(int row) {
    selected_ = row >= 0 && row < listCommonNames.rowCount() ? listCommonNames.index(row, 0) : QModelIndex();
    labelAliasNames = Text(u"Alias Names for");
    if (Selected() < 0) {
        listAlias.setStringList({});
    } else {
        const CommonNames::Row common = SelectedRow();
        labelAliasNames += u' ' + common.name + u" ("_s + QString::number(common.birth_year) + u')';
        GetAliases(common.name, common.birth_year);
    }
    Q_EMIT SelectionChanged();
}

void CrossLinkEditor::GetAliases(const QString &common_name, int birth_year) {
    QStringList aliases;
    sql::Recordset rows = session_.Database->OpenRecordset(QString(
        u"SELECT AliasName FROM Alias WHERE CommonName = '"_s + EscapeSql(common_name) + u'\'' + OfYear(birth_year)));
    for (; !rows.Eof(); rows.MoveNext()) {
        aliases += rows.Text(0);
    }
    listAlias.setStringList(aliases);
}

std::optional<int> CrossLinkEditor::AskYear(const QString &prompt, const QString &preset) {
    bool cancelled = false;
    const QString text = InputText(session_, prompt, Text(u"BirthYear"), cancelled, preset).trimmed();
    if (cancelled) {
        return std::nullopt;
    }
    bool ok = text.isEmpty();
    const int year = text.isEmpty() ? 0 : text.toInt(&ok);
    if (!ok || year < 0 || year > kLatestYear) {
        ShowMessage(session_, {.text = Text(u"This is no year:") + u' ' + text,
                               .title = Text(u"BirthYear"),
                               .icon = MessageIcon::Warning});
        return std::nullopt;
    }
    return year;
}

/// A name that is an alias cannot be a common name; told to the user.
bool CrossLinkEditor::IsRefused(const QString &name, int birth_year) {
    const sql::Recordset links = session_.Database->OpenRecordset(
        QString(u"SELECT CommonName FROM Alias WHERE AliasName = '"_s + EscapeSql(name) + u'\'' + OfYear(birth_year)));
    if (links.Eof()) {
        return false;
    }
    ShowMessage(session_,
                {.text = Text(u"Invalid Link Entry!") + u'\n' + name + u' ' + Text(u"is already used as an alias for") +
                         u' ' + links.Text(0) + u"!\n"_s + Text(u"Therefore it cannot be used as a common name."),
                 .title = Text(u"Invalid Link Entry"),
                 .icon = MessageIcon::Warning});
    return true;
}

void CrossLinkEditor::AddCommonName() {
    bool cancelled = false;
    const QString name =
        InputText(session_, Text(u"Enter a new Common Name"), Text(u"Enter Common Name"), cancelled, {}).trimmed();
    if (cancelled || name.isEmpty()) {
        return;
    }
    const std::optional<int> birth_year = AskYear(Text(u"Enter BirthYear or leave '0':"), u"0"_s);
    if (!birth_year || IsRefused(name, *birth_year)) {
        return;
    }
    const int listed = listCommonNames.Find(name, *birth_year);
    if (listed >= 0) {
        ShowMessage(session_, {.text = name + u' ' + Text(u"is already listed!"), .title = Text(u"Already listed")});
    }
    Select(listed >= 0 ? listed : listCommonNames.Append({name, *birth_year}));
}

void CrossLinkEditor::AddAlias() {
    if (Selected() < 0) {
        return;
    }
    const CommonNames::Row common = SelectedRow();
    bool cancelled = false;
    const QString alias = InputText(session_, Text(u"Enter a new alias for") + u' ' + common.name + u':',
                                    Text(u"Enter Alias"), cancelled, {})
                              .trimmed();
    if (!cancelled && !alias.isEmpty()) {
        LinkAlias(session_, common.name, alias, common.birth_year, false, {});
        GetAliases(common.name, common.birth_year);
    }
}

void CrossLinkEditor::RemoveAliasFromList(const QString &alias) {
    if (Selected() < 0 || alias.isEmpty()) {
        return;
    }
    const Message question = {.text =
                                  Text(u"Do you really want to remove") + u' ' + alias + u' ' + Text(u"from the list?"),
                              .title = Text(u"Remove Alias?"),
                              .icon = MessageIcon::Question,
                              .buttons = MessageButtons::YesNo,
                              .neutral = MessageAnswer::No};
    if (ShowMessage(session_, question) == MessageAnswer::Yes) {
        const CommonNames::Row common = SelectedRow();
        DeleteAlias(session_, alias, common.birth_year);
        GetAliases(common.name, common.birth_year);
    }
}

void CrossLinkEditor::RemoveCommonName() {
    if (Selected() < 0) {
        return;
    }
    const CommonNames::Row common = SelectedRow();
    const Message question = {.text = Text(u"Do you really want to remove") + u' ' + common.name + u" ("_s +
                                      QString::number(common.birth_year) + u")?\n"_s +
                                      Text(u"It will remove all related cross-links!"),
                              .title = Text(u"Remove Common Name"),
                              .icon = MessageIcon::Question,
                              .buttons = MessageButtons::YesNo,
                              .neutral = MessageAnswer::No};
    if (ShowMessage(session_, question) != MessageAnswer::Yes) {
        return;
    }
    session_.Database->Execute(QString(u"DELETE FROM Alias WHERE CommonName = '"_s + EscapeSql(common.name) + u'\'' +
                                       OfYear(common.birth_year)));
    const int row = Selected();
    listCommonNames.Remove(row);
    Select(std::min(row, listCommonNames.rowCount() - 1));
}

/// Wholly or not at all, since a group that is half moved would be lost.
void CrossLinkEditor::MoveGroup(const QStringList &group, const CommonNames::Row &from, const CommonNames::Row &to) {
    WriteTogether(session_, [&] {
        for (const QString &entry : group) {
            DeleteAlias(session_, entry, to.birth_year);
        }
        MoveAlias(session_, from.name, to);
        for (const QString &entry : group) {
            if (entry != to.name) {
                MoveAlias(session_, entry, to);
            }
        }
    });
}

void CrossLinkEditor::SetAsCommon(const QString &alias) {
    if (Selected() < 0 || alias.isEmpty() || !listAlias.stringList().contains(alias)) {
        return;
    }
    const int row = Selected();
    const CommonNames::Row old = SelectedRow();
    const CommonNames::Row common = {alias, old.birth_year};
    MoveGroup(listAlias.stringList(), old, common);
    listCommonNames.Remove(row);
    Select(listCommonNames.Append(common));
}

void CrossLinkEditor::ChangeYear() {
    if (Selected() < 0) {
        return;
    }
    const CommonNames::Row common = SelectedRow();
    const auto today = SplitDayCount(session_.services.clock.Now());
    const std::optional<int> birth_year =
        AskYear(Text(u"Enter new BirthYear:"), QString::number(today ? today->year : 0));
    if (!birth_year || *birth_year == common.birth_year) {
        return;
    }
    // Rows of every year move: deliberate.
    session_.Database->Execute(QString(u"UPDATE Alias SET BirthYear = "_s + QString::number(*birth_year) +
                                       u" WHERE CommonName = '"_s + EscapeSql(common.name) + u'\''));
    ListYearsOf(common.name);
    const int moved = listCommonNames.Find(common.name, *birth_year);
    Select(moved >= 0 ? moved : listCommonNames.Append({common.name, *birth_year}));
}

void CrossLinkEditor::ListYearsOf(const QString &name) {
    for (int row = listCommonNames.rowCount() - 1; row >= 0; --row) {
        if (sql::Compare(listCommonNames.At(row).name, name) == 0) {
            listCommonNames.Remove(row);
        }
    }
    sql::Recordset years = session_.Database->OpenRecordset(
        QString(u"SELECT DISTINCT BirthYear FROM Alias WHERE CommonName = '"_s + EscapeSql(name) + u'\''));
    for (; !years.Eof(); years.MoveNext()) {
        listCommonNames.Append({name, int(years.Get(0).Integer())});
    }
}

void CrossLinkEditor::ClearAlias() {
    const Message question = {.text = Text(u"Do you really want to delete all Alias entries from the database?"),
                              .title = Text(u"Delete all entries"),
                              .icon = MessageIcon::Warning,
                              .buttons = MessageButtons::YesNo,
                              .neutral = MessageAnswer::No};
    if (ShowMessage(session_, question) == MessageAnswer::Yes) {
        session_.Database->Execute(u"DELETE FROM Alias");
        listCommonNames.Assign({});
        Select(-1);
    }
}

} // namespace ostrand
