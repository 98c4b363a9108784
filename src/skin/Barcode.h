// Bar patterns of UPC-A, EAN-8 and EAN-13 numbers (ISO/IEC 15420).
#pragma once

#include <QString>

namespace ostrand {

/// The digits of a number that can be drawn, without "-" and blanks; empty for any other text. The check digit is not
/// looked at.
QString BarcodeDigits(const QString &number);
/// The parities of the left half, such as "LGLLGG"; empty for a number of another length.
QString GetBarcodeParity(const QString &digits);
/// The images of a barcode as markup. `folder` ends in a slash.
QString RenderBarcodeImages(const QString &number, const QString &folder, const QString &height);
/// The bars as groups of 0 and 1, for scripts.
QString EncodeBarcodeBits(const QString &number);

} // namespace ostrand
