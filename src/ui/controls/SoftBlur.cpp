// SPDX-License-Identifier: MIT
#include "ui/controls/SoftBlur.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace zelk {

namespace {

/// One box blur of a row or column: `count` values, `step` bytes apart. `before` is a buffer for a copy.
void blurLine(uchar* line, int count, qsizetype step, int radius, std::vector<uchar>& before) {
    uchar* const copy = before.data();
    for (int at = 0; at < count; ++at) copy[at] = line[at * step];
    const int width = 2 * radius + 1;
    int sum = 0;
    for (int at = -radius; at < count; ++at) {
        if (at + radius < count) sum += copy[at + radius];
        if (at - radius > 0) sum -= copy[at - radius - 1];
        if (at >= 0) line[at * step] = static_cast<uchar>((sum + width / 2) / width);
    }
}

}  // namespace

void blurMask(QImage& mask, int radius) {
    if (mask.isNull() || radius < 1) return;
    uchar* bits = mask.bits();
    const qsizetype stride = mask.bytesPerLine();
    std::vector<uchar> before(static_cast<std::size_t>(std::max(mask.width(), mask.height())));
    for (int pass = 0; pass < blurPasses; ++pass) {
        for (int y = 0; y < mask.height(); ++y) blurLine(bits + y * stride, mask.width(), 1, radius, before);
        for (int x = 0; x < mask.width(); ++x) blurLine(bits + x, mask.height(), stride, radius, before);
    }
}

QImage blackOf(const QImage& mask, double strength, double gain) {
    QImage image(mask.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < mask.height(); ++y) {
        const uchar* from = mask.constScanLine(y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < mask.width(); ++x)
            to[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(strength * std::min(255.0, gain * from[x]))));
    }
    return image;
}

}  // namespace zelk
