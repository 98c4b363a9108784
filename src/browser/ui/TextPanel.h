// What the panels with the data of a title have in common.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QScrollArea>

class QVBoxLayout;

namespace ostrand {

class Browser;
class FieldText;
class PanelList;

/// A column of texts and lists that scrolls when there is little room. What it shows comes from the browser.
class TextPanel : public QScrollArea {
    Q_OBJECT
public:
    TextPanel(Browser &browser, const QString &name, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The context menu of a field is asked for at a place of the screen.
    void FieldMenuWanted(const QString &control, const QPoint &place);
    /// A field is to be changed.
    void ChangeWanted(const QString &control);

protected:
    /// A frame of that name at the end of the column.
    QVBoxLayout *AddFrame(const QString &name, int stretch);
    /// A text of a field, which breaks where there is too little room.
    FieldText *AddText(QVBoxLayout &frame, const QString &name);
    /// A list whose rows lead to the titles of a category.
    PanelList *AddList(QVBoxLayout &frame, class ListTable &table, const QString &name, const QString &category);
    /// Lets a control ask for the context menu of the field that it shows.
    void OfferFieldMenu(QWidget &control);
    /// A check box that only shows.
    QCheckBox *AddMark(QVBoxLayout &frame, const QString &name);
    /// An empty text takes no room.
    static void ShowText(QLabel &label, const QString &text);
    QString Shown(const char16_t *text) const;
    /// The texts of the lists' menus, with the name of each.
    void TranslateList(PanelList &list, const char16_t *name);

    Browser &browser_;

private:
    QVBoxLayout *column_;
};

} // namespace ostrand
