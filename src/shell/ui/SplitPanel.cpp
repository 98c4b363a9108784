#include "shell/ui/SplitPanel.h"

#include "shell/ui/SplitBar.h"
#include "shell/ui/Twips.h"

#include <QEvent>

namespace ostrand {

SplitPanel::SplitPanel(QWidget *parent) : QWidget(parent), bar_(new SplitBar(*this)) {}

void SplitPanel::SetControl(int number, QWidget *control) {
    if (controls_[size_t(number)]) {
        controls_[size_t(number)]->removeEventFilter(this);
    }
    controls_[size_t(number)] = control;
    hidden_here_[size_t(number)] = false;
    if (control) {
        const bool hidden = control->isHidden() && control->testAttribute(Qt::WA_WState_ExplicitShowHide);
        control->setParent(this);
        control->setVisible(!hidden);
        control->installEventFilter(this);
    }
    // The bar stands between its panes in the order of the Tab key.
    if (controls_[0]) {
        setTabOrder(controls_[0], bar_);
    }
    if (controls_[1]) {
        setTabOrder(bar_, controls_[1]);
    }
    bar_->raise();
    Place();
}

void SplitPanel::SetMinPanelSize(int twips) {
    min_panel_size_ = std::max(twips, 0);
    Place();
}

void SplitPanel::SetHorizontal(bool on) {
    horizontal_ = on;
    bar_->Adapt();
    Place();
}

void SplitPanel::SetSnapToEdge(bool on) {
    snap_to_edge_ = on;
    Place();
}

void SplitPanel::SetSplitterWidth(int twips) {
    splitter_width_ = std::max(twips, 0);
    Place();
}

void SplitPanel::SetBackColor(const QColor &color) {
    back_color_ = color;
    bar_->Adapt();
}

void SplitPanel::SetPosition(int twips) {
    position_ = std::max(twips, 0);
    passing_position_ = kUnset;
    Place();
    Q_EMIT PositionChanged(position_);
}

void SplitPanel::SetPassingPosition(int twips, int least_second) {
    if (twips != passing_position_ || least_second != least_second_) {
        passing_position_ = twips;
        least_second_ = least_second;
        Place();
    }
}

void SplitPanel::SetDefaultPosition(double fraction) {
    default_position_ = std::clamp(fraction, 0.0, 1.0);
    Place();
}

QSize SplitPanel::minimumSizeHint() const {
    return horizontal_ ? QSize(0, BarWidth()) : QSize(BarWidth(), 0);
}

int SplitPanel::Extent() const {
    return horizontal_ ? height() : width();
}

int SplitPanel::BarWidth() const {
    return FromTwips(splitter_width_);
}

bool SplitPanel::IsHiddenByOwner(int number) const {
    const QWidget *control = controls_[size_t(number)];
    return !control || (control->isHidden() && !hidden_here_[size_t(number)]);
}

int SplitPanel::WantedPixels() const {
    if (passing_position_ != kUnset) {
        return std::max(std::min(FromTwips(passing_position_), Extent() - BarWidth() - FromTwips(least_second_)), 0);
    }
    return position_ == kUnset ? DefaultPixels() : FromTwips(position_);
}

int SplitPanel::DefaultPixels() const {
    return int(default_position_ * Extent());
}

int SplitPanel::Placed(int wanted, int &snapped) const {
    const int room = std::max(Extent() - BarWidth(), 0);
    const int least = FromTwips(min_panel_size_);
    snapped = 0;
    if (snap_to_edge_) {
        const int edge = std::max(least, BarWidth());
        if (wanted < edge) {
            snapped = 1;
            return 0;
        }
        if (wanted > room - edge) {
            snapped = 2;
            return room;
        }
        return wanted;
    }
    // Too little room for both: the second pane gives way first, as it does while the panel shrinks.
    return std::clamp(std::max(std::min(wanted, room - least), least), 0, room);
}

int SplitPanel::KeyTarget(int from, int wanted) const {
    int snapped = 0;
    const int target = Placed(wanted, snapped);
    if (target != from || !snap_to_edge_) {
        return target;
    }
    // A step out of the edge must lead beyond what snaps back.
    const int edge = std::max(FromTwips(min_panel_size_), BarWidth());
    if (wanted > from) {
        return Placed(edge, snapped);
    }
    return wanted < from && from > 0 ? Placed(Extent() - BarWidth() - edge, snapped) : target;
}

QRect SplitPanel::Slice(int from, int length) const {
    return horizontal_ ? QRect(0, from, width(), length) : QRect(from, 0, length, height());
}

void SplitPanel::ShowPane(int number, bool shown) {
    QWidget *control = controls_[size_t(number)];
    if (control && hidden_here_[size_t(number)] == shown) {
        hidden_here_[size_t(number)] = !shown;
        control->setVisible(shown);
    }
}

void SplitPanel::Place() {
    if (placing_) {
        return;
    }
    placing_ = true;
    const bool alone = IsHiddenByOwner(0) || IsHiddenByOwner(1);
    bar_->setVisible(!alone);
    snapped_ = 0;
    if (alone) {
        ShowPane(0, true);
        ShowPane(1, true);
        for (const QPointer<QWidget> &control : controls_) {
            if (control) {
                control->setGeometry(rect());
            }
        }
    } else {
        const int at = Placed(WantedPixels(), snapped_);
        const int behind = at + BarWidth();
        ShowPane(0, snapped_ != 1);
        ShowPane(1, snapped_ != 2);
        controls_[0]->setGeometry(Slice(0, at));
        bar_->setGeometry(Slice(at, BarWidth()));
        controls_[1]->setGeometry(Slice(behind, std::max(Extent() - behind, 0)));
    }
    placing_ = false;
}

void SplitPanel::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    Place();
}

void SplitPanel::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (position_ == kUnset && Extent() > 0) {
        position_ = ToTwips(DefaultPixels());
    }
    Place();
}

void SplitPanel::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        bar_->Adapt();
    }
}

bool SplitPanel::eventFilter(QObject *watched, QEvent *event) {
    if (!placing_ && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)) {
        // The owner decided anew.
        for (size_t i = 0; i < controls_.size(); ++i) {
            hidden_here_[i] = hidden_here_[i] && controls_[i] != watched;
        }
        Place();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace ostrand
