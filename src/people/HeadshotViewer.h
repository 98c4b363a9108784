// The picture of the selected person.
#pragma once

#include "base/FolderIndex.h"

#include <QObject>

#include <functional>
#include <optional>

namespace ostrand {

struct Session;

/// A person of the credits.
struct CreditPerson {
    QString name;
    QString birth_year; ///< empty or "0" where it is not known
};
/// The person of a node of treeCrew, whose tag is name, "|", birth year.
CreditPerson PersonOfTag(const QString &tag);

/// What picActor shows and what its context menu does. A view listens to PictureChanged, loads Picture() and clears
/// itself where that is empty or no picture.
class HeadshotViewer : public QObject {
    Q_OBJECT
public:
    explicit HeadshotViewer(Session &session);

    /// The person that is selected in the credits lists; nothing for none. Set by whoever has these lists.
    std::function<std::optional<CreditPerson>()> selected;

    /// Shows the picture of a person, the primary one with `reset`. False when there is none.
    bool LoadHeadShot(const QString &name, bool reset, const QString &birth_year);
    /// The next picture of the selected person; behind the last one comes the primary.
    void AlternateHeadshot();
    /// Clears picActor.
    void Clear();
    /// Whether the picture shown can become the primary one.
    bool CanSetAsPrimary() const { return !picture_.isEmpty() && alternate_ > 0; }
    /// Lets the picture shown and the primary one change places.
    void SetHeadshotAsPrimary();

    /// Asks for a URL and stores the picture under the selected person's common name.
    void DownloadHeadshotFromURL();
    /// Fetches a picture into a folder, as an alternate where the name has one. What is no picture is deleted, and
    /// nothing is reported. True when it was stored.
    bool DownloadHeadshot(const QString &url, const QString &name, const QString &folder);

    /// The person loaded last has a picture, be it an alternate that is not shown yet.
    bool HasPictures() const { return has_pictures_; }
    /// The file that is shown; empty for none.
    const QString &Picture() const { return picture_; }
    /// 0 for the primary picture.
    int Alternate() const { return alternate_; }

Q_SIGNALS:
    void PictureChanged();

private:
    /// The URL's picture at a place that is free; true when it is one.
    bool Fetch(const QString &url, const QString &path);
    /// Nobody has no name.
    CreditPerson Selected() const;
    bool IsHeadshotFolder(const QString &folder) const;

    Session &session_;
    FolderIndex index_;
    QString picture_;
    qint16 alternate_ = 0;
    bool has_pictures_ = false;
    bool fetching_ = false;
};

} // namespace ostrand
