// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace zelk {

/// How far the blur of a mask reaches beyond its edge, in pixels: the sum of three passes of this radius.
inline constexpr int blurPasses = 3;

/// The mask, an image of alpha alone, blurred by boxes of this radius in pixels in both directions: close to a Gauss
/// curve, and as fast for any radius. What reaches beyond the image is lost.
void blurMask(QImage& mask, int radius);

/// The mask in black: an alpha of 255 becomes `strength` (0 to 1), and what comes to more when it is multiplied with
/// `gain` does so too.
QImage blackOf(const QImage& mask, double strength, double gain = 1);

}  // namespace zelk
