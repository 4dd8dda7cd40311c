// SPDX-License-Identifier: MIT
#include "ui/charts/RibbonPicture.h"

#include <algorithm>

#include "ui/controls/Canvas.h"

namespace zelk {

std::vector<double> ribbonWidths(const std::vector<std::int64_t>& bytes, std::int64_t freeBytes, double width) {
    std::vector<double> widths;
    double all = 0;
    const auto add = [&](std::int64_t count) {
        widths.push_back(static_cast<double>(std::max<std::int64_t>(count, 0)));
        all += widths.back();
    };
    for (const std::int64_t count : bytes) add(count);
    add(freeBytes);
    if (all == 0) {
        widths.back() = width;
        return widths;
    }
    for (double& section : widths) section *= width / all;
    return widths;
}

void drawRibbon(Canvas& canvas, QSizeF size, const QList<RibbonSegment>& segments, std::int64_t freeBytes,
                const QColor& freeColor) {
    constexpr double outerCorner = 6;
    constexpr double innerCorner = 1.5;
    std::vector<std::int64_t> bytes;
    for (const RibbonSegment& segment : segments) bytes.push_back(segment.bytes);
    const std::vector<double> widths = ribbonWidths(bytes, freeBytes, size.width());

    double left = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const double right = left + widths[i];
        const bool last = right > size.width() - 0.5;
        const QColor& color = i < bytes.size() ? segments.at(static_cast<qsizetype>(i)).color : freeColor;
        if (widths[i] > 0)
            canvas.bar({left, 0, widths[i], size.height()}, left == 0 ? outerCorner : innerCorner,
                       last ? outerCorner : innerCorner, Paint::solid(color));
        left = right;
    }
}

void RibbonPicture::setSegments(const QList<RibbonSegment>& segments) {
    if (take(segments_, segments)) emit segmentsChanged();
}

void RibbonPicture::setFreeBytes(double freeBytes) {
    if (take(freeBytes_, freeBytes)) emit freeBytesChanged();
}

void RibbonPicture::setFreeColor(const QColor& freeColor) {
    if (take(freeColor_, freeColor)) emit freeColorChanged();
}

void RibbonPicture::draw(Canvas& canvas) const {
    drawRibbon(canvas, size(), segments_, static_cast<std::int64_t>(freeBytes_), freeColor_);
}

}  // namespace zelk

#include "moc_RibbonPicture.cpp"
