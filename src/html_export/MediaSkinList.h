// The item model of the media of the export and their skins.
#pragma once

#include "html_export/SiteOptions.h"

#include <QAbstractTableModel>

namespace ostrand {

/// A row for each medium that a profile has.
class MediaSkinList : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Medium, Skin };
    static constexpr int kColumns = 2;

    /// `chosen` are the skins so far; those of media that no profile has any more are left out. Throws SqlError.
    MediaSkinList(Session &session, const std::vector<MediaSkin> &chosen, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Asks for the skin of a row.
    void ChooseSkin(int row);
    /// The media with a skin of their own.
    std::vector<MediaSkin> Chosen() const;

private:
    Session &session_;
    std::vector<MediaSkin> rows_; ///< without a skin: the default
    QStringList shown_;           ///< the media in the user's language
    QString medium_, skin_, use_default_;
};

} // namespace ostrand
