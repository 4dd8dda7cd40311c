// SPDX-License-Identifier: MIT
#include "ui/controls/Typesetter.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace zelk {

namespace {

Lettering inWhole(Lettering lettering) {
    lettering.size = std::max(1.0, std::round(lettering.size));
    return lettering;
}

}  // namespace

const QFont& Typesetter::fontOf(const Lettering& whole) {
    if (const QFont system = QGuiApplication::font(); system != system_) {
        system_ = system;
        fonts_.clear();
        widths_.clear();
        shaped_.clear();
    }
    for (const auto& [known, font] : fonts_)
        if (known == whole) return font;

    QFont font = system_;
#ifdef Q_OS_MACOS
    if (whole.rounded) font.setFamilies({QStringLiteral("SF Pro Rounded"), font.family()});
#endif
    font.setPixelSize(static_cast<int>(whole.size));
    font.setWeight(whole.weight == Lettering::Weight::semibold ? QFont::DemiBold : QFont::Medium);
    return fonts_.emplace_back(whole, font).second;
}

double Typesetter::width(const QString& text, const Lettering& lettering) {
    const Line line{text, inWhole(lettering)};
    const QFont& font = fontOf(line.lettering);
    if (const double* known = widths_.object(line)) return *known;
    const double width = QFontMetricsF(font).horizontalAdvance(text);
    widths_.insert(line, new double(width));
    return width;
}

void Typesetter::write(QPainter& painter, QPointF center, const QString& text, const Lettering& lettering,
                       const QColor& color) {
    const Line line{text, inWhole(lettering)};
    const QFont& font = fontOf(line.lettering);
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
