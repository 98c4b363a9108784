// The second column of the main window: cover, and in TV view seasons and episodes.
#pragma once

#include <QComboBox>
#include <QTreeView>

namespace ostrand {

class Browser;
class GridDelegate;
class PictureView;

/// Frame4_1: the seasons in TV view, the cover.
class CoverPanel : public QWidget {
    Q_OBJECT
public:
    explicit CoverPanel(Browser &browser, QWidget *parent = nullptr);
    void TranslateNames();

private:
    void ShowSeasons();

    Browser &browser_;
    QComboBox *listSeasons_;
    PictureView *picCover_;
};

/// Frame4_2: the episodes.
class EpisodePanel : public QWidget {
    Q_OBJECT
public:
    explicit EpisodePanel(Browser &browser, QWidget *parent = nullptr);
    void SetGridLines(bool shown);
    void TranslateNames();

private:
    Browser &browser_;
    QTreeView *listEpisodes_;
    GridDelegate *delegate_;
    bool following_ = false;
};

} // namespace ostrand
