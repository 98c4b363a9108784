#include "html_export/ProfilePages.h"

#include "base/Text.h"
#include "browser/Titles.h"
#include "html_export/SiteFiles.h"
#include "html_export/SiteFolders.h"
#include "html_export/SiteText.h"
#include "shell/Session.h"
#include "shell/SettingsTable.h"
#include "skin/SkinPage.h"
#include "skin/TextConversion.h"

#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Where each title fails there is no use in a box for each.
constexpr int kMostBoxes = 10;
constexpr int kMostNames = 20;

constexpr auto kFailureTitle = "CreateOfflineHTML"_L1;

/// A profile that was made with this program, so that nobody else has its cover.
bool IsOwn(const QString &key) {
    return StartsWithIgnoringCase(key, u"osv");
}

/// The folder of the image server's covers of a key.
QString ServerFolder(const QString &key) {
    return CoverHost() + "/mpimages/"_L1 + UrlPart(key.left(2)) + u'/';
}

} // namespace

ProfilePages::ProfilePages(const SiteRun &run, const SiteTemplates &templates, int total) :
    run_(run), templates_(templates), options_(MakeRenderOptions()), total_(total) {
    Session &session = run_.session;
    cover_url_ = session.CoverPath.isEmpty() ? QString() : PathToFileUrl(session.CoverPath);
    skin_.covers.SetFolder(session.CoverPath);
    profile_text_ = Translate(session, u"Profile"_s) + u' ';
    of_total_ = u' ' + Translate(session, u"of"_s) + u' ' + QString::number(total);
    session.progress.SetLine(profile_text_ + u'0' + of_total_);
    session.progress.SetBar(0, total);
}

RenderOptions ProfilePages::MakeRenderOptions() {
    const SiteOptions &chosen = run_.options;
    return {.offline = true,
            .opUseMyProfilerScans = chosen.Covers == CoverSource::ImageServer,
            .opUseCoverScansLocally = chosen.Covers == CoverSource::InPlace,
            .chkGenerateCrosslinks = chosen.GenerateCrosslinks,
            .generate_episode_pages = chosen.GenerateEpisodeHTML,
            .use_original_title = !chosen.UseTitle,
            .use_custom_title = chosen.UseCustomTitle,
            .copy_headshot = [this](const QString &file) { CopyHeadshot(file); },
            .write_episode_page =
                [this](const sql::Recordset &row) { CreateHTMLProfile(row, true, GetEpisodeTitle(run_.titles, row)); }};
}

ProfilePages::Outcome ProfilePages::CreateHTMLProfile(const sql::Recordset &row, bool is_episode,
                                                      const QString &title) {
    if (Cancelled()) {
        return Outcome::Cancelled;
    }
    Page page{.key = SiteKey(row.Text(is_episode ? u"EpisodeID" : u"ProfileID")),
              .name = {},
              .is_episode = is_episode,
              .title = title};
    page.name = PageName(page.key);
    if (const Outcome claim = Claim(page); claim != Outcome::Done) {
        return claim;
    }
    try {
        return Write(page, row);
    } catch (const SiteFault &fault) {
        if (fault.EndsRun()) {
            throw;
        }
        TellFailure(title, fault.Text());
    } catch (const sql::SqlError &error) {
        TellFailure(title, error.Text());
    } catch (const SkinFailure &failure) {
        TellFailure(title, failure.Text());
    }
    return Outcome::Failed;
}

/// The first key has the name; another one would take its page away.
ProfilePages::Outcome ProfilePages::Claim(const Page &page) {
    QHash<QString, QString> &names = page.is_episode ? episodes_ : profiles_;
    const QString folded = page.name.toCaseFolded();
    const auto known = names.constFind(folded);
    if (known == names.constEnd()) {
        names.insert(folded, page.key);
        return Outcome::Done;
    }
    if (*known == page.key) {
        return Outcome::Again;
    }
    Trace(run_.session, u"CreateHTMLProfile: "_s + page.key + u" has the file name of "_s + *known, kTraceError);
    collided_ += page.title;
    return Outcome::Collided;
}

ProfilePages::Outcome ProfilePages::Write(const Page &page, const sql::Recordset &row) {
    const QByteArray html = SiteBytes(WithCoverAddresses(Render(page, row), page.key));
    // An episode of it may be missing then.
    if (Cancelled()) {
        return Outcome::Cancelled;
    }
    const QString folder = page.is_episode ? u"Episodes/"_s : u"Profiles/"_s;
    if (PutFile(run_.site + folder + page.name + ".html"_L1, html)) {
        Trace(run_.session, u"Update HTML Profile "_s + page.key, kTraceInfo);
    }
    if (!page.is_episode) {
        ++number_;
    }
    CopyCovers(page);
    ShowProgress();
    return Outcome::Done;
}

QString ProfilePages::Render(const Page &page, const sql::Recordset &row) {
    const QString &text = page.is_episode ? templates_.ForEpisode() : templates_.ForProfile(row.Text(u"Medium"));
    return RenderSkinText(run_.session, skin_, text, row, page.is_episode, {}, options_);
}

QString ProfilePages::WithCoverAddresses(QString html, const QString &key) const {
    if (cover_url_.isEmpty()) {
        return html;
    }
    switch (run_.options.Covers) {
    case CoverSource::Copied:
        return html.replace(cover_url_, "../Covers/"_L1);
    case CoverSource::ImageServer:
        return html.replace(cover_url_, ServerFolder(key));
    case CoverSource::InPlace:
        break;
    }
    return html;
}

void ProfilePages::ShowProgress() {
    frmProgress &progress = run_.session.progress;
    progress.SetLine(profile_text_ + QString::number(number_) + of_total_);
    // The titles of box sets are not in the total.
    progress.SetBar(std::min(number_, total_), total_);
    run_.session.services.pump.Turn();
}

bool ProfilePages::CopiesCovers(const QString &key) const {
    return run_.options.Covers == CoverSource::Copied ||
           (run_.options.Covers == CoverSource::ImageServer && IsOwn(key));
}

void ProfilePages::CopyCovers(const Page &page) {
    const bool copies = CopiesCovers(page.key);
    QString found[3];
    constexpr QLatin1String kEndings[] = {"f.jpg"_L1, "b.jpg"_L1, "s.jpg"_L1};
    for (int side = 0; side < 3; ++side) {
        const QString name = page.name + kEndings[side];
        const QString file = skin_.covers.Find(name);
        if (file.isEmpty()) {
            continue;
        }
        found[side] = copies ? "Covers/"_L1 + UrlPart(name) : PathToFileUrl(file);
        if (!copies) {
            continue;
        }
        const QString spelt = QFileInfo(file).fileName();
        if (!CopySiteFile(run_.session, file, run_.site + "Covers/"_L1 + name)) {
            found[side].clear();
        } else if (spelt != name) {
            // Pages show it as it is spelt on disk, and servers tell the difference.
            CopySiteFile(run_.session, file, run_.site + "Covers/"_L1 + spelt);
        }
    }
    if (!page.is_episode) {
        last_cover_ = CoverAddress(page, found[0], found[2]);
    }
}

QString ProfilePages::CoverAddress(const Page &page, const QString &front, const QString &spine) const {
    if (run_.options.Covers == CoverSource::ImageServer && !IsOwn(page.key)) {
        return ServerFolder(page.key) + UrlPart(page.name) + "f.jpg"_L1;
    }
    return front.isEmpty() ? spine : front;
}

void ProfilePages::CopyHeadshot(const QString &file) {
    if (headshots_.contains(file)) {
        return;
    }
    headshots_.insert(file);
    CopySiteFile(run_.session, file, run_.site + "Headshots/"_L1 + QFileInfo(file).fileName());
}

void ProfilePages::TellFailure(const QString &title, const QString &reason) {
    Session &session = run_.session;
    Trace(session, u"CreateHTMLProfile: "_s + title + u": "_s + reason, kTraceError);
    if (++failures_ > kMostBoxes) {
        untold_ += title;
        return;
    }
    ShowMessage(
        session,
        {.text = Translate(session, u"There has been a problem generating the HTML file for profile"_s) + u' ' + title,
         .title = kFailureTitle,
         .icon = MessageIcon::Warning});
}

void ProfilePages::TellRest() {
    const auto tell = [this](const QString &text, const QStringList &titles) {
        if (!titles.isEmpty()) {
            const QString more = titles.size() > kMostNames ? u"\r\n..."_s : QString();
            ShowMessage(run_.session, {.text = Translate(run_.session, text) + u' ' + QString::number(titles.size()) +
                                               "\r\n"_L1 + titles.mid(0, kMostNames).join("\r\n"_L1) + more,
                                       .title = kFailureTitle,
                                       .icon = MessageIcon::Warning});
        }
    };
    tell(u"More profiles whose HTML file could not be generated:"_s, untold_);
    tell(u"Profiles left out, as another one has the same file name:"_s, collided_);
}

bool ProfilePages::Cancelled() const {
    return run_.session.progress.ProgressCancelled();
}

} // namespace ostrand
