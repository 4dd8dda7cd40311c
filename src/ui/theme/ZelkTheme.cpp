// SPDX-License-Identifier: MIT
#include "ui/theme/ZelkTheme.h"

#include <algorithm>
#include <cmath>

namespace zelk {

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

const ZelkTheme& ZelkTheme::dark() {
    static const ZelkTheme theme{
        .isDark = true,
        .ground = QColor(12, 11, 18),
        .groundHi = QColor(22, 21, 31),
        .surface = QColor(27, 26, 38),
        .surfaceHi = QColor(38, 36, 51),
        .ink = QColor(246, 244, 238),
        .inkSoft = QColor(152, 146, 168),
        .hairline = QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.08F),
        .accent = QColor(245, 166, 35),
        .accentSoft = QColor(255, 210, 122),
        .alert = QColor(255, 90, 77),
    };
    return theme;
}

const ZelkTheme& ZelkTheme::light() {
    static const ZelkTheme theme{
        .isDark = false,
        .ground = QColor(239, 237, 243),
        .groundHi = QColor(248, 247, 251),
        .surface = QColor(255, 255, 255),
        .surfaceHi = QColor(251, 250, 254),
        .ink = QColor(23, 22, 31),
        .inkSoft = QColor(107, 102, 120),
        .hairline = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.08F),
        .accent = QColor(224, 133, 26),
        .accentSoft = QColor(246, 197, 106),
        .alert = QColor(216, 64, 46),
    };
    return theme;
}

QColor AccentGradient::from() {
    return {255, 194, 75};
}
QColor AccentGradient::to() {
    return {240, 133, 28};
}
QColor AccentGradient::ink() {
    return ZelkTheme::dark().ground;
}

QColor mix(const QColor& base, const QColor& other, double t) {
    const QColor clear(0, 0, 0, 0);
    const QColor from = base.isValid() ? base.toRgb() : clear;
    const QColor to = other.isValid() ? other.toRgb() : clear;
    const auto share = static_cast<float>(std::clamp(t, 0.0, 1.0));
    const auto between = [share](float a, float b) { return a * (1.0F - share) + b * share; };
    return QColor::fromRgbF(between(from.redF(), to.redF()), between(from.greenF(), to.greenF()),
                            between(from.blueF(), to.blueF()));
}

QColor withOpacity(const QColor& color, double opacity) {
    QColor result = color;
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor readable(const QColor& color, const QColor& ground, const QColor& ink) {
    constexpr double enough = 4.56;  // 4.5 and room for the rounding of blended colours
    constexpr int steps = 32;
    for (int step = 0; step < steps; ++step) {
        const QColor moved = mix(color, ink, static_cast<double>(step) / steps);
        if (contrast(moved, ground) >= enough) return moved;
    }
    return ink;
}

}  // namespace zelk
