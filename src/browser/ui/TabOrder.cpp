#include "browser/ui/TabOrder.h"

#include "shell/ui/SplitBar.h"

#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

namespace ostrand {

namespace {

constexpr const char16_t *kStops[] = {u"tabColList",
                                      u"comboFilter",
                                      u"textFind",
                                      u"listSeries",
                                      u"listSeasons",
                                      u"picMedium",
                                      u"picCover",
                                      u"picActor",
                                      u"listEpisodes",
                                      u"tabMain",
                                      u"ListCast",
                                      u"ListCrew",
                                      u"treeCrew",
                                      u"UPC",
                                      u"urlIMDB",
                                      u"textTitle",
                                      u"textSortTitle",
                                      u"textOriginalTitle",
                                      u"textOriginalSortTitle",
                                      u"textCollectionNumber",
                                      u"textCollectionType",
                                      u"textReleaseDate",
                                      u"textRuntime",
                                      u"textRating",
                                      u"textCaseType",
                                      u"textRegions",
                                      u"textLocality",
                                      u"listGenres",
                                      u"listStudios",
                                      u"listFeatures",
                                      u"listAudio",
                                      u"listSubtitles",
                                      u"textRatio",
                                      u"textVideoFormat",
                                      u"listAppearences",
                                      u"treeAwards"};

/// The round ends with the bars: whoever walks through the panels does not want to stop at each one between them.
QWidgetList StopsOf(const QWidget &window) {
    QWidgetList stops;
    for (int split = 1; auto *panel = window.findChild<QWidget *>(QStringLiteral("Split%1").arg(split)); ++split) {
        stops.append(panel->findChild<SplitBar *>({}, Qt::FindDirectChildrenOnly));
    }
    const auto *tools = window.findChild<QToolBar *>(QStringLiteral("toolMain"));
    for (QAction *action : tools->actions()) {
        stops.append(tools->widgetForAction(action));
    }
    for (const char16_t *name : kStops) {
        stops.append(window.findChild<QWidget *>(QString::fromUtf16(name)));
    }
    return stops;
}

} // namespace

void OrderTabs(QWidget &window) {
    const QWidgetList stops = StopsOf(window);
    // What takes no focus, such as an empty cover, could get no place.
    QList<Qt::FocusPolicy> policies;
    for (QWidget *stop : stops) {
        policies.append(stop->focusPolicy());
        stop->setFocusPolicy(Qt::StrongFocus);
    }
    for (qsizetype i = 1; i < stops.size(); ++i) {
        QWidget::setTabOrder(stops[i - 1], stops[i]);
    }
    for (qsizetype i = 0; i < stops.size(); ++i) {
        stops[i]->setFocusPolicy(policies[i]);
    }
    // The arrow keys reach all tabs.
    for (const QTabBar *tabs : window.findChildren<QTabBar *>()) {
        for (QToolButton *scroll : tabs->findChildren<QToolButton *>()) {
            scroll->setFocusPolicy(Qt::NoFocus);
        }
    }
}

} // namespace ostrand
