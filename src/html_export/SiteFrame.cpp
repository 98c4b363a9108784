#include "html_export/SiteFrame.h"

#include "base/Dates.h"
#include "base/Files.h"
#include "base/Text.h"
#include "html_export/SiteFiles.h"
#include "html_export/SiteFolders.h"
#include "html_export/SiteText.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// "yyyy-mm-dd hh:mm"
QString MinuteOf(double days) {
    return DayCountToDateTime(days).left(16);
}

void WriteFilled(const SiteRun &run, QLatin1String source, QLatin1String target, const SiteValues &values) {
    const QString folder = SiteSourceFolder(run.session);
    const std::optional<QByteArray> text = folder.isEmpty() ? std::nullopt : ReadFile(folder + source);
    if (!text) {
        Trace(run.session, u"CreateOfflineHTML: no template "_s + source, kTraceError);
        return;
    }
    PutFile(run.site + target, SiteBytes(FillSiteTemplate(DecodeUserText(*text), values)));
}

} // namespace

QString FillSiteTemplate(const QString &text, const SiteValues &values) {
    QString filled;
    qsizetype from = 0;
    for (qsizetype at = text.indexOf(u'%'); at >= 0; at = text.indexOf(u'%', at)) {
        const QStringView rest = QStringView(text).sliced(at);
        const auto value = std::find_if(values.begin(), values.end(),
                                        [rest](const auto &candidate) { return rest.startsWith(candidate.first); });
        if (value == values.end()) {
            ++at;
            continue;
        }
        filled += QStringView(text).sliced(from, at - from);
        filled += value->second;
        at += value->first.size();
        from = at;
    }
    return filled += QStringView(text).sliced(from);
}

void WriteSiteFrame(const SiteRun &run, const SiteList &list) {
    Session &session = run.session;
    WriteFilled(run, "list.html"_L1, "list.html"_L1,
                {{"%CollectionListing%"_L1, list.Tables()},
                 {"%CollectionTypeMenu%"_L1, list.Menu()},
                 {"%CollectionTypeSorting%"_L1, list.Sorting()}});
    WriteFilled(
        run, "common/0.js"_L1, "common/0.js"_L1,
        {{"%CollectionTypes%"_L1, list.ClickSwitch()}, {"%CollectionTypeNumer%"_L1, QString::number(list.Tabs())}});
    PutFile(run.site + "common/1.js"_L1, SiteBytes(list.TableObjects()));
    WriteFilled(run, "index2.html"_L1, "index2.html"_L1,
                {{"%CollectionTypeVariables%"_L1, list.Variables()},
                 {"%CollectionTypeTable%"_L1, list.VariableTables()},
                 {"%LastCollectionTypeIndex%"_L1, QString::number(list.Tabs() - 1)}});
    WriteFilled(run, "start.html"_L1, "start.html"_L1,
                {{"%LastUpdateString%"_L1,
                  HtmlText(Translate(session, u"Last Update"_s)) + ": "_L1 + MinuteOf(session.services.clock.Now())}});
    WriteFilled(run, "iPhone.html"_L1, "iphone.html"_L1, {{"%iPhoneListing%"_L1, list.Phone()}});
}

} // namespace ostrand
