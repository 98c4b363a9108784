// The digest that tells whether a profile's markup has changed.
#pragma once

#include <QString>
#include <QStringView>

namespace ostrand {

/// The MD5 digest of the low byte of each UTF-16 unit, as 32 lower-case hexadecimal digits. Texts that differ only in
/// high bytes have the same digest: deliberate, since digests are stored. No security measure.
QString MD5(QStringView text);

} // namespace ostrand
