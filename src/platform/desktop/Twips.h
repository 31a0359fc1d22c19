// The unit of positions and sizes: 1440 to the inch, 15 to a logical pixel.
//
// That holds for letters of the usual size. With larger ones whatever is measured in twips grows as they do, so that a
// box that is 375 twips high holds its line of text in any font.
#pragma once

namespace desktop {

// How many times as large as usual the letters are; at least 1.
double letterScale();

// Logical pixels.
int pixels(double twips);
double twips(double pixels);

} // namespace desktop
