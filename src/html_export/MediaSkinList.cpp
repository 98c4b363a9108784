#include "html_export/MediaSkinList.h"

#include "shell/Session.h"
#include "skin/SkinPage.h"
#include "sql/Collation.h"

namespace ostrand {

using namespace Qt::StringLiterals;

MediaSkinList::MediaSkinList(Session &session, const std::vector<MediaSkin> &chosen, QObject *parent) :
    QAbstractTableModel(parent), session_(session), medium_(Translate(session, u"Media Type"_s)),
    skin_(Translate(session, u"Skin"_s)), use_default_(Translate(session, QString::fromUtf16(kUseDefaultSkin))) {
    sql::Recordset media =
        session.Database->OpenRecordset(u"SELECT DISTINCT Medium FROM Profiles WHERE Medium <> '' ORDER BY Medium");
    for (; !media.Eof(); media.MoveNext()) {
        const QString medium = media.Text(0);
        const auto own = std::find_if(chosen.begin(), chosen.end(),
                                      [&](const MediaSkin &pair) { return sql::Compare(pair.medium, medium) == 0; });
        rows_.push_back({medium, own == chosen.end() ? QString() : own->skin});
        shown_ += Translate(session, medium);
    }
}

int MediaSkinList::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int MediaSkinList::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant MediaSkinList::data(const QModelIndex &index, int role) const {
    if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    if (index.column() == Medium) {
        return shown_[index.row()];
    }
    const QString &skin = rows_[size_t(index.row())].skin;
    return skin.isEmpty() ? use_default_ : skin;
}

QVariant MediaSkinList::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == Medium ? medium_ : skin_;
}

void MediaSkinList::ChooseSkin(int row) {
    if (row < 0 || row >= rowCount()) {
        return;
    }
    const QModelIndex cell = index(row, Skin);
    const std::optional<QString> answer = session_.services.dialogs.InputCombo(
        Translate(session_, u"Select Skin for media type"_s), Translate(session_, u"Skin Selection"_s),
        QStringList(use_default_) + SkinNames(session_), cell.data().toString());
    // A name that was typed must not end the pair in the stored list.
    const QString text = answer.value_or(QString()).remove(u'|').trimmed();
    if (text.isEmpty()) {
        return;
    }
    rows_[size_t(row)].skin = text == use_default_ ? QString() : text;
    Q_EMIT dataChanged(cell, cell);
}

std::vector<MediaSkin> MediaSkinList::Chosen() const {
    std::vector<MediaSkin> chosen;
    std::copy_if(rows_.begin(), rows_.end(), std::back_inserter(chosen),
                 [](const MediaSkin &pair) { return !pair.skin.isEmpty(); });
    return chosen;
}

} // namespace ostrand
