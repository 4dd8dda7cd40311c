// SPDX-License-Identifier: MIT
#include "ui/controls/TextShadow.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/controls/SoftShadow.h"
#include "ui/theme/ReadingDirection.h"

namespace zelk {

QImage textShadow(const QString& text, const QFont& font, double scale) {
    constexpr double blurRadius = 1.1;  // of each pass, in points
    constexpr double gain = 3.2;        // the blur alone would be faint around the thin strokes of small text
    constexpr double strength = 0.62;
    if (text.isEmpty()) return {};
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(text) + 2 * textShadowReach;
    const double height = metrics.height() + 2 * textShadowReach;
    QImage glyphs(static_cast<int>(std::ceil(width * scale)), static_cast<int>(std::ceil(height * scale)),
                  QImage::Format_ARGB32_Premultiplied);
    glyphs.fill(Qt::transparent);
    {
        QPainter painter(&glyphs);
        painter.setRenderHint(QPainter::TextAntialiasing);
        painter.scale(scale, scale);
        painter.setFont(font);
        painter.setPen(Qt::black);
        // As in a Text item, whose direction is that of its text and not the application's.
        if (readsFromRight()) painter.setLayoutDirection(Qt::LayoutDirectionAuto);
        painter.drawText(QPointF(textShadowReach, textShadowReach + metrics.ascent()), text);
    }
    QImage mask = glyphs.convertToFormat(QImage::Format_Alpha8);
    blurMask(mask, std::max(1, static_cast<int>(std::lround(blurRadius * scale))));
    QImage shadow = blackOf(mask, strength, gain);
    shadow.setDevicePixelRatio(scale);
    return shadow;
}

void TextShadow::draw(QPainter& painter) {
    const double room = width() - 2 * textShadowReach;
    const QString shown = QFontMetricsF(font_).elidedText(line_, Qt::ElideRight, std::ceil(room));
    painter.drawImage(QPointF(), textShadow(shown, font_, painter.deviceTransform().m11()));
}

}  // namespace zelk

#include "moc_TextShadow.cpp"
