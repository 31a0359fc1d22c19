// The unit of positions and sizes: 1440 to the inch, 15 to a logical pixel.
#pragma once

#include <cmath>

namespace desktop {

inline constexpr double twipsPerPixel = 15.0;

inline int pixels(double twips)
{
    return int(std::lround(twips / twipsPerPixel));
}

inline double twips(int pixels)
{
    return pixels * twipsPerPixel;
}

} // namespace desktop
