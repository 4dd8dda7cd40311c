// SPDX-License-Identifier: MIT
// Whether text can be read on what it stands on.
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <algorithm>
#include <cmath>

namespace zelk {

/// The least contrast of small text that the accessibility guidelines ask for.
inline constexpr double readableContrast = 4.5;

/// The contrast of two opaque colours as those guidelines count it.
inline double contrastBetween(const QColor& one, const QColor& other) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&](const QColor& color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

/// What is seen where `color` lies on an opaque ground.
inline QColor laidOn(const QColor& ground, const QColor& color) {
    const float share = color.alphaF();
    const auto channel = [share](float below, float above) { return below * (1 - share) + above * share; };
    return QColor::fromRgbF(channel(ground.redF(), color.redF()), channel(ground.greenF(), color.greenF()),
                            channel(ground.blueF(), color.blueF()));
}

/// The white pixels of a text in this part of an image, and how many of them have no pixel within `reach` pixels that
/// they can be told from.
struct WhiteStrokes {
    int pixels = 0;
    int unreadable = 0;
};

inline WhiteStrokes whiteStrokes(const QImage& image, const QRect& part, int reach) {
    WhiteStrokes strokes;
    const auto setOff = [&](int x, int y) {
        for (int down = -reach; down <= reach; ++down)
            for (int right = -reach; right <= reach; ++right)
                if (image.valid(x + right, y + down) &&
                    contrastBetween(Qt::white, image.pixelColor(x + right, y + down)) >= readableContrast)
                    return true;
        return false;
    };
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (std::min({color.red(), color.green(), color.blue()}) < 235) continue;
            ++strokes.pixels;
            if (!setOff(x, y)) ++strokes.unreadable;
        }
    return strokes;
}

}  // namespace zelk
