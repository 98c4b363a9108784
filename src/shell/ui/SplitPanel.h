// A container with two panes and a bar between them.
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

namespace ostrand {

class SplitBar;

/// Lengths are in twips. The panes' contents have no say in their sizes: with MinPanelSize 0 a pane may vanish. A pane
/// that its owner hides gives its room to the other.
class SplitPanel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int MinPanelSize READ MinPanelSize WRITE SetMinPanelSize)
    Q_PROPERTY(bool Horizontal READ Horizontal WRITE SetHorizontal)
    Q_PROPERTY(bool SnapToEdge READ SnapToEdge WRITE SetSnapToEdge)
    Q_PROPERTY(int SplitterWidth READ SplitterWidth WRITE SetSplitterWidth)
    Q_PROPERTY(int Position READ Position WRITE SetPosition NOTIFY PositionChanged)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QColor DragColor READ DragColor WRITE SetDragColor)
    Q_PROPERTY(int Snapped READ Snapped)
public:
    static constexpr int kUnset = -1;

    explicit SplitPanel(QWidget *parent = nullptr);

    QWidget *Control1() const { return controls_[0]; }
    QWidget *Control2() const { return controls_[1]; }
    /// The control becomes a child of this panel.
    void SetControl1(QWidget *control) { SetControl(0, control); }
    void SetControl2(QWidget *control) { SetControl(1, control); }

    int MinPanelSize() const { return min_panel_size_; }
    void SetMinPanelSize(int twips);
    /// The bar lies horizontally, so the panes stand above each other.
    bool Horizontal() const { return horizontal_; }
    void SetHorizontal(bool on);
    /// A pane that would become smaller than MinPanelSize vanishes, and the bar lies at the edge.
    bool SnapToEdge() const { return snap_to_edge_; }
    void SetSnapToEdge(bool on);
    int SplitterWidth() const { return splitter_width_; }
    void SetSplitterWidth(int twips);
    QColor BackColor() const { return back_color_; }
    void SetBackColor(const QColor &color);
    /// The colour of the bar while it is dragged.
    QColor DragColor() const { return drag_color_; }
    void SetDragColor(const QColor &color) { drag_color_ = color; }

    /// The size of the first pane as it is wanted; it is kept while the panel is too small for it. kUnset before the
    /// panel was shown for the first time, unless it was set.
    int Position() const { return position_; }
    void SetPosition(int twips);
    /// Where the bar lies until it is moved or this is set to kUnset, whatever Position says. The second pane gets its
    /// least size before the first gets its own.
    void SetPassingPosition(int twips, int least_second = 0);
    /// The position that the first show gives when none was set, as a part of the panel's extent. 0.5 at first.
    void SetDefaultPosition(double fraction);
    /// 0 for none, 1 or 2 for the pane that vanished at the edge.
    int Snapped() const { return snapped_; }

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user moved the bar, or SetPosition was called.
    void PositionChanged(int twips);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class SplitBar;

    void SetControl(int number, QWidget *control);
    int Extent() const;
    int BarWidth() const;
    /// Where the bar lies when it should lie at a place, in pixels; tells the pane that vanishes there.
    int Placed(int wanted, int &snapped) const;
    /// Where a key takes the bar; a bar at the edge comes away from it.
    int KeyTarget(int from, int wanted) const;
    int WantedPixels() const;
    int DefaultPixels() const;
    void Place();
    void ShowPane(int number, bool shown);
    QRect Slice(int from, int length) const;
    bool IsHiddenByOwner(int number) const;

    std::array<QPointer<QWidget>, 2> controls_;
    std::array<bool, 2> hidden_here_ = {false, false};
    int min_panel_size_ = 2000;
    int splitter_width_ = 75;
    int position_ = kUnset;
    int passing_position_ = kUnset;
    int least_second_ = 0; ///< twips, while there is a passing position
    double default_position_ = 0.5;
    bool horizontal_ = false;
    bool snap_to_edge_ = false;
    bool placing_ = false;
    int snapped_ = 0;
    QColor back_color_;
    QColor drag_color_;
    SplitBar *bar_; // last, since it asks for the others as it is made
};

} // namespace ostrand
