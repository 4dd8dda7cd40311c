// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace zelk {

/// The colours of the interface, as two fixed instances. sRGB, opaque except for the hairline.
struct ZelkTheme {
    bool isDark;
    QColor ground;      ///< the window's background
    QColor groundHi;    ///< the brighter end of the background's gradient
    QColor surface;     ///< cards
    QColor surfaceHi;   ///< items on a card, hovered items
    QColor ink;         ///< text
    QColor inkSoft;     ///< secondary text
    QColor hairline;    ///< outlines and dividers
    QColor accent;      ///< primary actions; use sparingly
    QColor accentSoft;  ///< a lighter variant of the accent
    QColor alert;

    static const ZelkTheme& dark();
    static const ZelkTheme& light();

    bool operator==(const ZelkTheme&) const = default;
};

/// The gradient of primary buttons, from top left to bottom right. The same in both themes.
struct AccentGradient {
    static QColor from();
    static QColor to();
    /// The colour of text on the gradient, which is the same in both themes too.
    static QColor ink();
};

/// Interpolates from `base` to `other` with `t` clamped to 0...1. The result is opaque; both lose their alpha. An
/// invalid colour counts as transparent black.
QColor mix(const QColor& base, const QColor& other, double t);

/// `color` with its alpha replaced by `opacity`, 0 to 1.
QColor withOpacity(const QColor& color, double opacity);

/// The contrast ratio of two opaque colours as defined by WCAG: 1 (none) to 21.
double contrast(const QColor& one, const QColor& other);

/// Moves `color` towards `ink` just far enough for text on `ground`, which needs a contrast of 4.5.
QColor readable(const QColor& color, const QColor& ground, const QColor& ink);

}  // namespace zelk
