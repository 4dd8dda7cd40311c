// SPDX-License-Identifier: MIT
#include "ui/charts/ModuleGlow.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zelk {

namespace {

constexpr unsigned ditherSide = 8;

/// Thresholds for ordered dithering, added to a channel before truncation: the values from 0 to 1 once each per square,
/// with similar ones far apart.
std::array<float, ditherSide * ditherSide> ditherSquare() {
    std::array<float, ditherSide * ditherSide> square{};
    for (unsigned y = 0; y < ditherSide; ++y)
        for (unsigned x = 0; x < ditherSide; ++x) {
            unsigned rank = 0;
            for (unsigned bit = 0; bit < 3; ++bit) {
                const unsigned across = (x >> bit) & 1U;
                const unsigned down = (y >> bit) & 1U;
                rank = (rank << 2U) | ((across ^ down) << 1U) | down;
            }
            square[y * ditherSide + x] = (static_cast<float>(rank) + 0.5F) / (ditherSide * ditherSide);
        }
    return square;
}

struct Channels {
    float red;
    float green;
    float blue;
};

Channels channelsOf(const QColor& color) {
    return {color.redF() * 255, color.greenF() * 255, color.blueF() * 255};
}

}  // namespace

QImage ModuleGlow::picture(double scale) const {
    static const auto dither = ditherSquare();
    const Channels ground = channelsOf(ground_);
    const Channels light = channelsOf(color_);
    const Channels way{light.red - ground.red, light.green - ground.green, light.blue - ground.blue};
    const auto full = static_cast<float>(opacity(dark_));
    const auto fade = static_cast<float>(full / (endRadius * scale));

    QImage image(static_cast<int>(std::ceil(width() * scale)), static_cast<int>(std::ceil(height() * scale)),
                 QImage::Format_RGB32);
    const double middle = middle_.x() * scale;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const float* offsets = dither.data() + (static_cast<unsigned>(y) % ditherSide) * ditherSide;
        const auto down = static_cast<float>(y + 0.5 - middle_.y() * scale);
        // In steps of the square's side, which the compiler turns into vector instructions.
        for (int left = 0; left < image.width(); left += ditherSide) {
            const auto first = static_cast<float>(left + 0.5 - middle);
            std::array<QRgb, ditherSide> shades;
            for (unsigned x = 0; x < ditherSide; ++x) {
                const float across = first + static_cast<float>(x);
                const float share = std::max(0.0F, full - fade * std::sqrt(across * across + down * down));
                shades[x] = qRgb(static_cast<int>(ground.red + share * way.red + offsets[x]),
                                 static_cast<int>(ground.green + share * way.green + offsets[x]),
                                 static_cast<int>(ground.blue + share * way.blue + offsets[x]));
            }
            std::copy_n(shades.begin(), std::min<int>(ditherSide, image.width() - left), line + left);
        }
    }
    return image;
}

}  // namespace zelk

#include "moc_ModuleGlow.cpp"
