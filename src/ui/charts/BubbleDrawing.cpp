// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleDrawing.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_map>

#include "ui/charts/Circles.h"
#include "ui/controls/Brushes.h"
#include "ui/controls/TextShadow.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

constexpr double leastForHighlight = 16;
constexpr double leastForLabel = 20;
constexpr double leastForIcon = 24;
constexpr double leastForIconAndLabel = 32;
constexpr double leastForSize = 50;

constexpr double focusOffset = 5;
constexpr double focusWidth = 3;

double shadowBlur(double r) {
    return std::max(0.16 * r, 3.0);
}
double shadowDrop(double r) {
    return std::max(0.08 * r, 1.0);
}

QPointF middleOf(const PackedCircle& circle) {
    return {circle.center.x, circle.center.y};
}

void drawGlass(QPainter& painter, QPointF center, double r, const QColor& color, bool dark) {
    drawDiscShadow(painter, center, r, withOpacity(Qt::black, dark ? 0.5 : 0.22), shadowBlur(r), shadowDrop(r));
    fillDisc(painter, center, r, color);
    fillDisc(painter, center, r,
             radialBrush(center - QPointF(0.3 * r, 0.36 * r), 1.55 * r,
                         {{0, mix(color, Qt::white, 0.42)}, {1, mix(color, Qt::black, 0.28)}}));
    drawRing(painter, center, r + 1, 1.5, withOpacity(mix(color, Qt::white, 0.55), 0.7));
    drawRing(painter, center, r, 1, withOpacity(Qt::white, 0.12));
    if (r < leastForHighlight) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(withOpacity(Qt::white, 0.16));
    painter.drawEllipse(QRectF(center.x() - 0.46 * r, center.y() - 0.74 * r, 0.92 * r, 0.48 * r));
}

void drawEmphasis(QPainter& painter, QPointF center, double r, bool selected, bool hovered) {
    if (selected)
        drawRing(painter, center, r, 3, Qt::white);
    else if (hovered)
        drawRing(painter, center, r, 2, withOpacity(Qt::white, 0.85));
}

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

ShownSlices slicesOf(const std::vector<PackedCircle>& circles, const std::vector<BubbleSlice>& slices) {
    std::unordered_map<std::string_view, const BubbleSlice*> byID;
    for (const BubbleSlice& slice : slices) byID.emplace(slice.id, &slice);
    ShownSlices shown;
    for (const PackedCircle& circle : circles) {
        const auto found = byID.find(circle.id);
        shown.push_back(found == byID.end() ? nullptr : found->second);
    }
    return shown;
}

BubbleFace bubbleFace(const PackedCircle& circle, const BubbleSlice& slice, double textScale,
                      const std::function<double(const QString&, BubbleFont, double)>& widthOf) {
    const double r = circle.radius;
    const double room = 1.5 * r;
    const bool large = r >= leastForSize;
    const auto below = [&](double distance) { return middleOf(circle) + QPointF(0, distance); };
    const auto label = [&](double offset, double size) {
        const auto width = [&](const QString& part) { return widthOf(part, BubbleFont::label, size); };
        return BubbleText{fittedLabel(withoutIsolation(slice.label), room, size, width), below(offset), size};
    };

    BubbleFace face;
    if (!slice.icon.isNull() && r >= leastForIcon) {
        const bool labelled = r >= leastForIconAndLabel;
        const double side = (labelled ? 0.62 : 0.85) * r;
        const QPointF middle = below(labelled ? -0.24 * r : 0);
        face.icon = {middle.x() - side / 2, middle.y() - side / 2, side, side};
        if (labelled) face.label = label((large ? 0.3 : 0.42) * r, std::min(0.26 * r, 15 * textScale));
    } else if (r >= leastForLabel) {
        face.label = label(large ? -8 : 0, std::clamp(0.4 * r, 9 * textScale, 15 * textScale));
    }
    if (large) {
        const double size = std::min(0.2 * r, 13 * textScale);
        const QString text = withoutIsolation(byteFigure(slice.bytes));
        if (widthOf(text, BubbleFont::size, size) <= room) face.bytes = {text, below(0.52 * r), size};
    }
    return face;
}

std::vector<std::size_t> paintedBubbles(const std::vector<PackedCircle>& circles, const ShownSlices& slices,
                                        const QRectF& clip) {
    std::vector<std::size_t> painted;
    for (std::size_t at = 0; at < circles.size(); ++at)
        if (slices[at] != nullptr && (clip.isNull() || clip.intersects(bubbleBox(circles[at])))) painted.push_back(at);
    return painted;
}

void drawBubbles(QPainter& painter, const std::vector<PackedCircle>& circles, const ShownSlices& slices,
                 const std::optional<std::string>& hoveredID, const BubbleLook& look, BubbleTexts& texts) {
    const auto widthOf = [&](const QString& text, BubbleFont kind, double size) {
        return texts.width(text, kind, size);
    };
    const QRectF clip = painter.hasClipping() ? painter.clipBoundingRect() : QRectF();
    for (const std::size_t at : paintedBubbles(circles, slices, clip)) {
        const PackedCircle& circle = circles[at];
        const BubbleSlice& slice = *slices[at];
        const ZelkTheme& theme = look.dark ? ZelkTheme::dark() : ZelkTheme::light();
        const QColor color = slice.color.isValid() ? slice.color : theme.inkSoft;
        drawGlass(painter, middleOf(circle), circle.radius, color, look.dark);
        drawEmphasis(painter, middleOf(circle), circle.radius, slice.selected, circle.id == hoveredID);
        const BubbleFace face = bubbleFace(circle, slice, look.textScale, widthOf);
        if (!face.icon.isNull()) painter.drawImage(face.icon, slice.icon);
        const auto write = [&](const BubbleText& line, BubbleFont kind, const QColor& ink) {
            if (line.text.isEmpty()) return;
            texts.shade(painter, line.middle, line.text, kind, line.size);
            texts.write(painter, line.middle, line.text, kind, line.size, ink);
        };
        write(face.label, BubbleFont::label, Qt::white);
        write(face.bytes, BubbleFont::size, withOpacity(Qt::white, 0.95));
    }
}

void drawBubbleFocus(QPainter& painter, const PackedCircle& circle, const QColor& line, const QColor& ground) {
    const double radius = std::max(circle.radius, 0.0) + focusOffset;
    drawRing(painter, middleOf(circle), radius, focusWidth + 4, ground);
    drawRing(painter, middleOf(circle), radius, focusWidth, line);
}

QRectF bubbleBox(const PackedCircle& circle) {
    const double radius = std::max(circle.radius, 0.0);
    // A blur has faded out at one and a half times its length.
    const double reach = radius + std::max(1.5 * shadowBlur(radius) + shadowDrop(radius), focusOffset + focusWidth) + 2;
    return {circle.center.x - reach, circle.center.y - reach, 2 * reach, 2 * reach};
}

}  // namespace zelk
