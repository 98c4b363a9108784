#include "html_export/CreateOfflineHtml.h"

#include "base/Files.h"
#include "browser/Titles.h"
#include "html_export/CrossLinkFiles.h"
#include "html_export/ProfilePages.h"
#include "html_export/SiteFiles.h"
#include "html_export/SiteFilter.h"
#include "html_export/SiteFolders.h"
#include "html_export/SiteFrame.h"
#include "html_export/SiteQueries.h"
#include "html_export/SiteText.h"
#include "shell/Session.h"
#include "skin/SkinPage.h"
#include "sql/Collation.h"

#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kName = "CreateOfflineHTML"_L1;
/// Box sets in box sets; only a damaged collection comes here.
constexpr int kDeepestBoxset = 100;

class SiteExport {
public:
    SiteExport(Session &session, const QString &path, const QString &skin, const SiteOptions &options,
               const SiteHost &host) :
        session_(session),
        skin_(skin), options_(options),
        host_(host), run_{.session = session, .options = options, .site = WithSeparator(path), .titles = session.view},
        templates_(session, run_.site, options.GenerateCrosslinks) {
        run_.titles.mUseOriginalTitle = !options.UseTitle;
        run_.titles.mUseCustomTitle = options.UseCustomTitle;
        run_.titles.mShowDescription = options.AppendEdition;
    }

    bool Run();

private:
    bool Prepare();
    bool ReadCondition();
    void CreateCrossLinks();
    void WriteTitles();
    void WriteTab(const SiteTab &tab, SiteList &list);
    void AddTitle(const sql::Recordset &row, SiteList &list);
    void AddBoxsetChildren(const QString &id, const SiteEntry &entry, SiteList &list);
    void AddSiteTitle(const SiteEntry &entry, const sql::Recordset &row);
    QStringList TabNames();
    SiteListTexts ListTexts();
    void Finish(const SiteList &list);
    bool Cancelled() const { return session_.progress.ProgressCancelled(); }
    void SetLine(const QString &text) {
        session_.progress.SetLine(Translate(session_, text));
        session_.services.pump.Turn();
    }
    QString Text(const QString &text) { return Translate(session_, text); }

    Session &session_;
    QString skin_;
    const SiteOptions &options_;
    const SiteHost &host_;
    SiteRun run_;
    SiteTemplates templates_;
    SiteCondition condition_;
    QStringList col_types_;
    QSet<QByteArray> boxsets_; // by the key that the database compares ids by
    QStringList open_boxsets_;
    std::optional<ProfilePages> pages_;
    std::optional<StreamedFile> site_titles_;
};

bool SiteExport::Run() {
    if (!ReadCondition()) {
        return false;
    }
    if (SkinFile(session_, skin_).isEmpty()) {
        SiteTemplates::TellMissing(session_, u"Skin"_s, skin_);
        return false;
    }
    const qint64 begin = session_.services.clock.Milliseconds();
    Trace(session_, u"Start CreateOfflineHTML"_s, kTraceEntry);
    session_.progress.Load(Text(u"Creating HTML Export..."_s));
    SetLine(u"Preparing HTML Export"_s);
    bool complete = false;
    if (Prepare()) {
        WriteTitles();
        complete = !Cancelled();
    }
    session_.progress.UnloadForm(complete);
    const double seconds = double(session_.services.clock.Milliseconds() - begin) / 1000;
    Trace(session_, u"End CreateOfflineHTML"_s, kTraceExit);
    Trace(session_, u"Elapsed time "_s + QString::number(seconds), kTraceExit);
    return complete;
}

/// False when the filter yields nothing.
bool SiteExport::ReadCondition() {
    if (options_.Filter.isEmpty()) {
        return true;
    }
    condition_.filter = SavedQueryCondition(session_, options_.Filter, host_.CurrentColType);
    if (condition_.filter.isEmpty()) {
        ShowMessage(session_, {.text = Text(u"Error in Filter"_s), .title = {}, .icon = MessageIcon::Warning});
    }
    return !condition_.filter.isEmpty();
}

/// Everything before the first page. False when the run ends there.
bool SiteExport::Prepare() {
    if (!templates_.Read(skin_, options_)) {
        return false;
    }
    col_types_ = CheckedColTypes(session_, options_);
    if (col_types_.isEmpty()) {
        Trace(session_, u"CreateOfflineHTML: no collection type"_s, kTraceInfo);
        return false;
    }
    condition_.col_types = ColTypeCondition(col_types_);
    MakeSiteFolders(run_.site, options_.GenerateEpisodeHTML);
    CreateCrossLinks();
    SetLine(u"Copy General Files"_s);
    CopyGeneralFiles(session_, run_.site);
    return true;
}

/// Goes to its end even when the user cancels: pages of a site that was there before link to these files.
void SiteExport::CreateCrossLinks() {
    const QString folder = run_.site + "crosslink/"_L1;
    SetLine(u"Delete old Crosslink Files"_s);
    DeleteOldCrossLinkFiles(folder);
    if (options_.GenerateCrosslinks) {
        SetLine(u"Create Crosslink Files"_s);
        CreateCrossLinkFiles(session_, folder);
    }
}

QStringList SiteExport::TabNames() {
    if (options_.UseCollectionType) {
        return col_types_;
    }
    QStringList media;
    sql::Recordset rows = session_.Database->OpenRecordset(condition_.Media());
    for (; !rows.Eof(); rows.MoveNext()) {
        media += rows.Text(0);
    }
    return media;
}

SiteListTexts SiteExport::ListTexts() {
    return {.title = Text(u"Title"_s),
            .collection_number = Text(u"Collection Number"_s),
            .tabs = Text(options_.UseCollectionType ? u"Collection Type"_s : u"Media Type"_s)};
}

void SiteExport::WriteTitles() {
    const int total = int(session_.Database->OpenRecordset(condition_.Count()).Integer(u"Count"));
    pages_.emplace(run_, templates_, total);
    sql::Recordset boxsets = session_.Database->OpenRecordset(BoxsetIds());
    for (; !boxsets.Eof(); boxsets.MoveNext()) {
        boxsets_.insert(sql::SortKey(boxsets.Text(0)));
    }
    site_titles_.emplace(run_.site + "common/2.js"_L1);
    site_titles_->Write(u"siteTitles({\r\n"_s);
    const std::vector<SiteTab> tabs = MakeSiteTabs(session_, TabNames());
    SiteList list(tabs, options_.UseCollectionType, ListTexts());
    for (const SiteTab &tab : tabs) {
        list.BeginTab(tab);
        WriteTab(tab, list);
        list.EndTab();
    }
    site_titles_->Write(u"});\r\n"_s);
    Finish(list);
    pages_->TellRest();
}

void SiteExport::WriteTab(const SiteTab &tab, SiteList &list) {
    if (Cancelled()) {
        return;
    }
    sql::Recordset rows = session_.Database->OpenRecordset(condition_.TabRows(options_, tab.name));
    for (; !rows.Eof() && !Cancelled(); rows.MoveNext()) {
        AddTitle(rows, list);
    }
}

void SiteExport::AddTitle(const sql::Recordset &row, SiteList &list) {
    const QString id = row.Text(u"ProfileID");
    const SiteEntry entry{.page = PageName(SiteKey(id)),
                          .title = GetTitle(run_.titles, row, false, true),
                          .col_no = row.Text(u"ColNo"),
                          .real_sort = row.Text(u"RealSort")};
    using Outcome = ProfilePages::Outcome;
    const Outcome outcome = pages_->CreateHTMLProfile(row, false, entry.title);
    if (outcome == Outcome::Cancelled || outcome == Outcome::Collided) {
        return;
    }
    if (outcome == Outcome::Done) {
        AddSiteTitle(entry, row);
    }
    const bool is_boxset = boxsets_.contains(sql::SortKey(id)) && open_boxsets_.size() < kDeepestBoxset &&
                           !open_boxsets_.contains(id, Qt::CaseInsensitive);
    if (is_boxset) {
        AddBoxsetChildren(id, entry, list);
    } else if (outcome != Outcome::Failed || QFileInfo::exists(run_.site + "Profiles/"_L1 + entry.page + ".html"_L1)) {
        list.Add(entry);
    }
}

void SiteExport::AddBoxsetChildren(const QString &id, const SiteEntry &entry, SiteList &list) {
    open_boxsets_.append(id);
    list.BeginBoxset(entry);
    sql::Recordset children = session_.Database->OpenRecordset(BoxsetChildren(options_, id));
    for (; !children.Eof() && !Cancelled(); children.MoveNext()) {
        AddTitle(children, list);
    }
    list.EndBoxset();
    open_boxsets_.removeLast();
}

void SiteExport::AddSiteTitle(const SiteEntry &entry, const sql::Recordset &row) {
    site_titles_->Write(ScriptLiteral(entry.page, u'"') + ":["_L1 + ScriptLiteral(pages_->LastCover(), u'"') + u',' +
                        QString::number(row.Integer(u"ProdYear")) + "],\r\n"_L1);
}

void SiteExport::Finish(const SiteList &list) {
    if (Cancelled() && QFileInfo::exists(run_.site + "list.html"_L1)) {
        return;
    }
    SetLine(u"Generate list"_s);
    site_titles_->Commit();
    WriteSiteFrame(run_, list);
}

/// A fault that ends the run.
void TellFault(Session &session, const QString &text) {
    session.progress.UnloadForm(false);
    Trace(session, kName + ": "_L1 + text, kTraceError);
    ShowMessage(session, {.text = text, .title = kName, .icon = MessageIcon::Critical});
}

bool FolderExists(Session &session, const QString &path) {
    const bool exists = !path.isEmpty() && QFileInfo(path).isDir();
    if (!exists) {
        ShowMessage(
            session,
            {.text = Translate(session, u"Export Path does not exist!"_s), .title = {}, .icon = MessageIcon::Warning});
    }
    return exists;
}

} // namespace

bool CreateOfflineHTML(Session &session, const QString &exportPath, const QString &skin, const SiteOptions &options,
                       const SiteHost &host) {
    if (!session.Database) {
        ShowMessage(session, {.text = Translate(session, u"No open database!"_s), .icon = MessageIcon::Warning});
        return false;
    }
    try {
        return SiteExport(session, exportPath, skin, options, host).Run();
    } catch (const sql::SqlError &error) {
        TellFault(session, error.Text());
    } catch (const SkinFailure &failure) {
        TellFault(session, failure.Text());
    } catch (const SiteFault &fault) {
        TellFault(session, fault.Text());
    } catch (const std::exception &fault) {
        TellFault(session, QString::fromLocal8Bit(fault.what()));
    }
    return false;
}

bool StartOfflineHTML(Session &session, const QString &exportPath, const QString &skin, const SiteOptions &options,
                      const SiteHost &host) {
    return FolderExists(session, exportPath) && !skin.isEmpty() &&
           CreateOfflineHTML(session, exportPath, skin, options, host);
}

void CreateHTMLCollection(Session &session, const QString &folder) {
    // A missing skin is told here, as nobody looks at a box to choose one.
    if (FolderExists(session, folder)) {
        SiteOptions options = LoadSiteOptions(session);
        options.GenerateEpisodeHTML = options.GenerateEpisodeHTML && SkinListsEpisodes(session, session.CurrentSkin);
        CreateOfflineHTML(session, folder, session.CurrentSkin, options, {});
    }
}

} // namespace ostrand
