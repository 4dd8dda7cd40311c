// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace zelk {

/// A blur is this many box blurs, so that it extends a mask by `blurPasses` times the radius.
inline constexpr int blurPasses = 3;

/// Blurs an alpha-only image in both directions by repeated box blurs of `radius` pixels, which approximates a Gaussian
/// blur and takes the same time for every radius. What would extend beyond the image is lost.
void blurMask(QImage& mask, int radius);

/// Converts a mask to black, with its alpha multiplied by `gain`, limited to 255, and then by `strength` (0 to 1).
QImage blackOf(const QImage& mask, double strength, double gain = 1);

}  // namespace zelk
