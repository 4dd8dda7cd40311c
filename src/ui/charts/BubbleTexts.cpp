// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleTexts.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/controls/TextShadow.h"

namespace zelk {

BubbleTexts::Face BubbleTexts::faceOf(BubbleFont kind, double size) {
    return {kind, static_cast<int>(std::max(1.0, std::round(size)))};
}

const QFont& BubbleTexts::fontOf(const Face& face) {
    if (const QFont system = QGuiApplication::font(); system != system_) {
        system_ = system;
        fonts_.clear();
        widths_.clear();
        shaped_.clear();
        shadows_.clear();
    }
    for (const auto& [known, font] : fonts_)
        if (known == face) return font;

    QFont font = system_;
#ifdef Q_OS_MACOS
    if (face.kind == BubbleFont::size) font.setFamilies({QStringLiteral("SF Pro Rounded"), font.family()});
#endif
    font.setPixelSize(face.size);
    font.setWeight(face.kind == BubbleFont::label ? QFont::DemiBold : QFont::Medium);
    return fonts_.emplace_back(face, font).second;
}

double BubbleTexts::width(const QString& text, BubbleFont kind, double size) {
    const Line line{text, faceOf(kind, size)};
    const QFont& font = fontOf(line.face);
    if (const double* known = widths_.object(line)) return *known;
    const double width = QFontMetricsF(font).horizontalAdvance(text);
    widths_.insert(line, new double(width));
    return width;
}

void BubbleTexts::shade(QPainter& painter, QPointF center, const QString& text, BubbleFont kind, double size) {
    const Line line{text, faceOf(kind, size)};
    const QFont& font = fontOf(line.face);
    if (const double scale = painter.deviceTransform().m11(); scale != shadowScale_) {
        shadowScale_ = scale;
        shadows_.clear();
    }
    if (!shadows_.contains(line)) shadows_.insert(line, new QImage(textShadow(text, font, shadowScale_)));
    const QImage& shadow = *shadows_.object(line);
    const QSizeF points = shadow.deviceIndependentSize();
    painter.drawImage(center - QPointF(points.width(), points.height()) / 2, shadow);
}

void BubbleTexts::write(QPainter& painter, QPointF center, const QString& text, BubbleFont kind, double size,
                        const QColor& color) {
    const Line line{text, faceOf(kind, size)};
    const QFont& font = fontOf(line.face);
    if (!shaped_.contains(line)) {
        auto* shaped = new QStaticText(text);
        shaped->setTextFormat(Qt::PlainText);
        shaped->prepare(painter.transform(), font);
        shaped_.insert(line, shaped);
    }
    const QStaticText& shaped = *shaped_.object(line);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawStaticText(center - QPointF(shaped.size().width(), shaped.size().height()) / 2, shaped);
}

}  // namespace zelk
