// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace zelk {

/// The colours of everything that is not data: one of two fixed instances. sRGB, opaque but for the hairline.
struct ZelkTheme {
    bool isDark;
    QColor ground;      ///< behind everything
    QColor groundHi;    ///< the brighter end of the background's gradient
    QColor surface;     ///< cards
    QColor surfaceHi;   ///< what lies on a card, and hovered things
    QColor ink;         ///< text
    QColor inkSoft;     ///< text that steps back
    QColor hairline;    ///< outlines and dividers
    QColor accent;      ///< the one colour that asks to be pressed
    QColor accentSoft;  ///< its lighter companion
    QColor alert;

    static const ZelkTheme& dark();
    static const ZelkTheme& light();

    bool operator==(const ZelkTheme&) const = default;
};

/// Fills every primary button from its top left to its bottom right corner, in both themes alike.
struct AccentGradient {
    static QColor from();
    static QColor to();
    /// What is written on it. The gradient does not follow the theme, so this does not either.
    static QColor ink();
};

/// The colour at `t` (clamped to 0 to 1) on the way from `base` to `other`, always opaque: both lose their opacity.
/// An invalid colour counts as clear black.
QColor mix(const QColor& base, const QColor& other, double t);

/// `color` at `opacity` (0 to 1) in place of its own.
QColor withOpacity(const QColor& color, double opacity);

/// The contrast of two opaque colours as the accessibility guidelines count it: 1 (none) to 21.
double contrast(const QColor& one, const QColor& other);

/// `color` moved towards `ink` by no more than it takes to be read as text on `ground`: a contrast of 4.5.
QColor readable(const QColor& color, const QColor& ground, const QColor& ink);

}  // namespace zelk
