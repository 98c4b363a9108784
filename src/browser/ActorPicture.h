// The picture of the person that is selected.
#pragma once

#include "base/FolderIndex.h"

#include <QObject>
#include <QString>

namespace ostrand {

struct Session;

/// What picActor shows, and the alternate index of the main window.
class ActorPicture : public QObject {
    Q_OBJECT
public:
    explicit ActorPicture(Session &session) : session_(session) {}

    /// Shows a person's picture; `reset` begins with the primary one. False, and no picture, where there is none.
    bool LoadHeadShot(const QString &name, bool reset, const QString &birth_year);
    /// The next picture of the person shown last; behind the last one comes the primary.
    void AlternateHeadshot();
    /// Nobody is selected.
    void Clear();

    /// Empty for no picture.
    const QString &Picture() const { return path_; }
    /// 0 for the primary picture.
    int Alternate() const { return alternate_; }
    /// The person has a picture, be it an alternate that is not shown yet.
    bool HasPictures() const { return has_pictures_; }

Q_SIGNALS:
    void PictureChanged();

private:
    Session &session_;
    FolderIndex index_;
    QString name_;
    QString birth_year_;
    QString path_;
    int alternate_ = 0;
    bool has_pictures_ = false;
};

} // namespace ostrand
