#include "browser/CollectionTypes.h"

#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "database/DatabaseFunctions.h"
#include "database/RecordOperations.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString AskName(Session &session, const QString &prompt, const QString &preset) {
    bool cancelled = false;
    const QString name =
        InputText(session, Translate(session, prompt), Translate(session, u"Collection Type"_s), cancelled, preset)
            .trimmed();
    return cancelled ? QString() : name;
}

/// The tab of a type, from 1; 0 when there is none.
int TabOfColType(Browser &browser, const QString &type) {
    for (qsizetype i = 0; i < browser.tabColList.size(); ++i) {
        if (sql::Compare(ReverseTranslate(browser.session, browser.tabColList[i]), type) == 0) {
            return int(i) + 1;
        }
    }
    return 0;
}

QStringList ProfilesOfColType(Session &session, const QString &type) {
    QStringList ids;
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT ProfileID FROM Profiles WHERE ColType = '"_s +
                                                          EscapeSql(type) + u'\'');
    for (; !rows.Eof(); rows.MoveNext()) {
        ids += rows.Text(0);
    }
    return ids;
}

void WriteColType(Session &session, const QStringList &ids, const QString &name) {
    WriteTogether(session, [&] {
        for (const QString &id : ids) {
            session.Database->Execute(u"UPDATE Profiles SET ColType = '"_s + EscapeSql(name) +
                                      u"' WHERE ProfileID = '"_s + EscapeSql(id) + u'\'');
        }
    });
}

/// Gives the tab at `index` another type, or takes it away where that type has a tab; a default type's stays.
void RenameTab(Browser &browser, int index, const QString &old_type, const QString &name) {
    const int other = TabOfColType(browser, name);
    const bool stays = IsDefaultColType(old_type) && browser.session.view.UseProfilerColTypes;
    const QString caption = Translate(browser.session, name);
    if (other == index || (other == 0 && !stays)) {
        browser.tabColList[index - 1] = caption;
    } else if (other == 0) {
        browser.tabColList += caption;
    } else if (!stays) {
        browser.tabColList.removeAt(index - 1);
    }
    SelectColTypeTab(browser, std::max(TabOfColType(browser, name), 1));
}

void SayNotPossible(Session &session, const QString &text) {
    ShowMessage(session,
                {.text = text, .title = Translate(session, u"Removing not possible"_s), .icon = MessageIcon::Warning});
}

bool HasTypes(const Browser &browser) {
    return browser.session.Database && !browser.session.view.mTVShows;
}

} // namespace

void AddColType(Browser &browser) {
    if (!HasTypes(browser)) {
        return;
    }
    const QString name = AskName(browser.session, u"Enter new Collection Type Name:"_s, {});
    if (!name.isEmpty() && TabOfColType(browser, name) == 0) {
        browser.tabColList += Translate(browser.session, name);
        Q_EMIT browser.TabsChanged();
    }
}

void RenameCollectionType(Browser &browser) {
    const int index = browser.tabColList_selected;
    if (!HasTypes(browser) || index < 2) {
        return;
    }
    Session &session = browser.session;
    const QString type = SelectedColType(browser);
    const QString name = AskName(session, u"Enter new collection type name:"_s, type);
    // A profile that stood in a type called "All" could not be shown apart.
    if (name.isEmpty() || name == type || TabOfColType(browser, name) == 1) {
        return;
    }
    WriteColType(session, ProfilesOfColType(session, type), name);
    RenameTab(browser, index, type, name);
}

void RemoveColType(Browser &browser) {
    if (!HasTypes(browser)) {
        return;
    }
    Session &session = browser.session;
    const int index = browser.tabColList_selected;
    const QString type = SelectedColType(browser);
    if (index < 2 || IsDefaultColType(type)) {
        SayNotPossible(session, Translate(session, u"Removing of default collection types not possible!"_s));
        return;
    }
    if (!ProfilesOfColType(session, type).isEmpty()) {
        SayNotPossible(session, Translate(session, u"Removing of Collection Type not possible"_s) + "\r\n"_L1 +
                                    Translate(session, u"There are still profiles assigned to it!"_s));
        return;
    }
    browser.tabColList.removeAt(index - 1);
    SelectColTypeTab(browser, 1);
}

} // namespace ostrand
