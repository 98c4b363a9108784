// The second column of the main window: cover, and in TV view seasons and episodes.
#pragma once

#include <QComboBox>
#include <QTreeView>

namespace ostrand {

class ActorView;
class Browser;
class GridDelegate;
class MediumIcon;
class PictureView;

/// Frame4_1: the seasons in TV view, the icon of the medium in movie view, the cover, the selected person.
class CoverPanel : public QWidget {
    Q_OBJECT
public:
    explicit CoverPanel(Browser &browser, QWidget *parent = nullptr);
    ActorView *picActor() const { return picActor_; }
    void TranslateNames();
    /// The height in which the cover and the selected person below it fill the width; 0 without a cover.
    int WantedHeight() const;

Q_SIGNALS:
    /// The context menu of the seasons is asked for at a place of the screen.
    void SeasonMenuWanted(const QPoint &place);
    /// The same of the cover.
    void CoverMenuWanted(const QPoint &place);
    /// The same of a control that shows a field of the title.
    void FieldMenuWanted(const QString &control, const QPoint &place);
    /// A field is to be changed.
    void FieldChangeWanted(const QString &control);
    void WantedHeightChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void ShowSeasons();
    void ShowMedium();
    int CoverHeight() const;
    /// 0 while nobody is shown.
    int ActorHeight() const;
    /// The cover and the person below it share the height as theirs are, so that both fill the width alike.
    void ShareHeight();

    Browser &browser_;
    QComboBox *listSeasons_;
    MediumIcon *picMedium_;
    PictureView *picCover_;
    ActorView *picActor_;
};

/// Frame4_2: the episodes.
class EpisodePanel : public QWidget {
    Q_OBJECT
public:
    explicit EpisodePanel(Browser &browser, QWidget *parent = nullptr);
    void SetGridLines(bool shown);
    void TranslateNames();
    /// A few rows.
    int LeastHeight() const;

Q_SIGNALS:
    /// The context menu is asked for at a place of the screen.
    void MenuWanted(const QPoint &place);
    /// A double click on a row, or Enter.
    void RowActivated();

private:
    void ConnectList();
    void SortByHeader(int column);

    Browser &browser_;
    QTreeView *listEpisodes_;
    GridDelegate *delegate_;
    int sorted_by_ = -1;
    Qt::SortOrder order_ = Qt::AscendingOrder;
    bool following_ = false;
};

} // namespace ostrand
