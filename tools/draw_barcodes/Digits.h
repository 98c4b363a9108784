// The shapes of digits, so that the pictures do not depend on a font.
#pragma once

namespace ostrand::barcodes {

inline constexpr int kDigitColumns = 5;
inline constexpr int kDigitRows = 7;

bool DigitPixel(int digit, int column, int row);

} // namespace ostrand::barcodes
