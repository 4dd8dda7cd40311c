// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleTexts.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>

#include "ui/controls/TextShadow.h"

namespace zelk {

namespace {

/// The end of each grapheme cluster.
std::vector<qsizetype> characterEnds(const QString& text) {
    std::vector<qsizetype> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype at = finder.toNextBoundary(); at > 0; at = finder.toNextBoundary()) ends.push_back(at);
    return ends;
}

}  // namespace

QString fittedLabel(const QString& label, double room, double slack,
                    const std::function<double(const QString&)>& widthOf) {
    // Measuring hundreds of characters is slow, and the first few usually exceed the width already.
    constexpr qsizetype longText = 48;
    const bool tooLong = label.size() > longText && widthOf(label.left(longText)) > room + slack;
    if (label.isEmpty() || (!tooLong && widthOf(label) <= room)) return label;

    const std::vector<qsizetype> ends = characterEnds(label);
    const auto elided = [&](std::size_t count) { return label.left(ends[count - 1]) + QStringLiteral("…"); };
    const auto tooWide = [&](std::size_t count) { return widthOf(elided(count)) > room + slack; };

    // Finds the first count of characters that is certainly too wide. Doubles from below, where texts are short and
    // quick to measure, then bisects.
    std::size_t low = 0;
    std::size_t high = 1;
    while (high < ends.size() && !tooWide(high)) {
        low = high;
        high *= 2;
    }
    high = std::min(high, ends.size());
    while (high - low > 1) {
        const std::size_t middle = low + (high - low) / 2;
        (tooWide(middle) ? high : low) = middle;
    }
    for (std::size_t count = high - 1; count > 0; --count) {
        QString shortened = elided(count);
        if (widthOf(shortened) <= room) return shortened;
    }
    return {};
}

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
