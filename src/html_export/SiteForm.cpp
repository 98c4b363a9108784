#include "html_export/SiteForm.h"

#include "database/RecordOperations.h"
#include "shell/Session.h"
#include "skin/SkinPage.h"

#include <QScopeGuard>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QStringList WithChosen(QStringList names, const QString &chosen) {
    if (!chosen.isEmpty() && !names.contains(chosen, Qt::CaseInsensitive)) {
        names += chosen;
    }
    return names;
}

/// All of the options or none.
void WriteWhole(Session &session, const SiteOptions &options) {
    WriteTogether(session, [&] { SaveSiteOptions(session, options); });
    session.Database->Flush();
}

/// The empty name and those of the saved queries.
QStringList SavedQueries(Session &session) {
    QStringList names{QString()};
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT Name FROM SQLQueries ORDER BY Name");
    for (; !rows.Eof(); rows.MoveNext()) {
        names += rows.Text(0);
    }
    return names;
}

} // namespace

SiteForm::SiteForm(Session &session, SiteHost host) :
    options(LoadSiteOptions(session)), col_types(session, SiteColTypes(session, options)),
    media_skins(session, options.MediaSkins), session_(session), host_(std::move(host)),
    filters_(SavedQueries(session)) {}

QStringList SiteForm::Skins(const QString &chosen) const {
    return WithChosen(SkinNames(session_), chosen);
}

QStringList SiteForm::Filters() const {
    return WithChosen(filters_, options.Filter);
}

bool SiteForm::ListsEpisodes(const QString &skin) const {
    const QString file = SkinFile(session_, skin);
    return !file.isEmpty() && ReadSkinFile(file).toLower().contains("name=\"episodes\""_L1);
}

void SiteForm::BrowseExportPath() {
    const QString folder =
        session_.services.dialogs.BrowseFolder(Translate(session_, u"Export Path"_s), options.ExportPath);
    if (!folder.isEmpty()) {
        options.ExportPath = folder;
    }
}

bool SiteForm::CanSave() const {
    return session_.Database && !session_.DatabaseTooNew;
}

bool SiteForm::Save() {
    if (!CanSave()) {
        return false;
    }
    try {
        WriteWhole(session_, AllOptions());
    } catch (const sql::SqlError &error) {
        Trace(session_, u"frmHTMLExport: "_s + error.Text(), kTraceError);
        ShowMessage(
            session_,
            {.text = error.Text(), .title = Translate(session_, u"HTML Export"_s), .icon = MessageIcon::Critical});
        return false;
    }
    return true;
}

bool SiteForm::Start() {
    if (running_) {
        return false;
    }
    running_ = true;
    const auto stopped = qScopeGuard([this] { running_ = false; });
    const SiteOptions chosen = AllOptions();
    return StartOfflineHTML(session_, chosen.ExportPath, chosen.Skin, chosen, host_);
}

void SiteForm::CancelRun() {
    if (running_) {
        session_.progress.Close();
    }
}

SiteOptions SiteForm::AllOptions() const {
    SiteOptions all = options;
    all.ColTypesOrder = col_types.Order();
    all.ExcludedColTypes = col_types.Excluded();
    all.MediaSkins = media_skins.Chosen();
    return all;
}

} // namespace ostrand
