#include "base/Md5.h"

#include <QCryptographicHash>

namespace ostrand {

QString MD5(QStringView text) {
    QByteArray low_bytes(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), low_bytes.begin(), [](QChar c) { return char(c.unicode() & 0xFF); });
    return QString::fromLatin1(QCryptographicHash::hash(low_bytes, QCryptographicHash::Md5).toHex());
}

} // namespace ostrand
