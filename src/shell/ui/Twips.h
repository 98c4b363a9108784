// The unit of stored window geometry.
#pragma once

namespace ostrand {

inline constexpr int kTwipsPerPixel = 15; ///< at 100 % scaling

constexpr int ToTwips(int pixels) {
    return pixels * kTwipsPerPixel;
}
constexpr int FromTwips(int twips) {
    return twips / kTwipsPerPixel;
}

} // namespace ostrand
