// The unit of stored window geometry.
#pragma once

namespace ostrand {

inline constexpr int kTwipsPerPixel = 15; ///< at 100 % scaling

inline int ToTwips(int pixels) {
    return pixels * kTwipsPerPixel;
}
inline int FromTwips(int twips) {
    return twips / kTwipsPerPixel;
}

} // namespace ostrand
