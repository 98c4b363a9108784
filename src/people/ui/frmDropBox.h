// A small window that takes pictures.
#pragma once

#include "people/DropBox.h"

#include <QWidget>

class QFrame;
class QLabel;
class QPushButton;

namespace ostrand {

struct Session;

/// Stays above the other windows. Pictures come by dropping them, by Ctrl+V, or by a file dialog; Esc closes.
class frmDropBox : public QWidget {
    Q_OBJECT
public:
    explicit frmDropBox(Session &session, QWidget *parent = nullptr);

    ostrand::DropType DropType() const { return drop_type_; }
    void SetDropType(ostrand::DropType type) { drop_type_ = type; }
    /// Gives the controls their texts in the present language.
    void TranslateTexts();

Q_SIGNALS:
    /// A picture was kept; the path of its file.
    void PictureStored(const QString &path);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void MakeZone();
    QPushButton *MakeButton(const QString &name);
    void Paste();
    void Choose();
    void Store(const QStringList &drops);
    /// Lights the zone up while something hangs over it.
    void Highlight(bool on);
    QString Text(const char16_t *english);

    Session &session_;
    ostrand::DropType drop_type_ = ostrand::DropType::Person;
    QFrame *zone_ = nullptr;
    QLabel *hint_ = nullptr;
    QLabel *result_ = nullptr;
    QPushButton *choose_ = nullptr;
    QPushButton *paste_ = nullptr;
};

} // namespace ostrand
