// The translations of many texts, read at once.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace ostrand {

struct Session;

/// Answers as Translate does, for texts that it was made with; any other stands as it is.
class TranslatedTexts {
public:
    TranslatedTexts(Session &session, const QStringList &texts);

    QString operator()(const QString &text) const;

private:
    QHash<QByteArray, QString> translated_;
};

} // namespace ostrand
