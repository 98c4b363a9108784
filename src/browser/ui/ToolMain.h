// The tool bar of the main window.
#pragma once

#include <QToolBar>

class QAction;
class QMenu;
class QToolButton;

namespace ostrand {

class Browser;
struct ToolButton;

/// `toolMain`: it follows the browser, its commands and the setting that shows it. Its buttons, and their actions,
/// carry the names of the table. Their shortcuts work while it is hidden too.
class ToolMain : public QToolBar {
    Q_OBJECT
public:
    /// `browser` must live as long as the bar. The shortcuts belong to `window`.
    ToolMain(Browser &browser, QWidget &window);

private:
    struct Button {
        const ToolButton *row = nullptr;
        QAction *action = nullptr;
        QToolButton *widget = nullptr;
        QMenu *history = nullptr;
    };
    void AddButton(const ToolButton &row, QWidget &window);
    QMenu *AddHistoryMenu(const ToolButton &row, QToolButton &widget);
    void FillHistory(const Button &button);
    void FillHistories();
    void MoveTo(bool back, int index);
    void ShowStates();
    void ShowTexts();
    void ShowSettings();

    Browser &browser_;
    QList<Button> buttons_;
};

} // namespace ostrand
