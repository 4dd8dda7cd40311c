// SPDX-License-Identifier: MIT
#include "ui/charts/RibbonPicture.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

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

/// A bar with one radius for its left corners and another for its right ones, both limited by its size.
static QPainterPath barPath(const QRectF& rect, double leftCorner, double rightCorner) {
    const double most = std::min(rect.height(), rect.width()) / 2;
    const double left = std::min(leftCorner, most);
    const double right = std::min(rightCorner, most);
    QPainterPath path(rect.topLeft() + QPointF(left, 0));
    path.arcTo(QRectF(rect.right() - 2 * right, rect.top(), 2 * right, 2 * right), 90, -90);
    path.arcTo(QRectF(rect.right() - 2 * right, rect.bottom() - 2 * right, 2 * right, 2 * right), 0, -90);
    path.arcTo(QRectF(rect.left(), rect.bottom() - 2 * left, 2 * left, 2 * left), 270, -90);
    path.arcTo(QRectF(rect.left(), rect.top(), 2 * left, 2 * left), 180, -90);
    return path;
}

void RibbonPicture::draw(QPainter& painter) {
    constexpr double outerCorner = 6;
    constexpr double innerCorner = 1.5;
    std::vector<std::int64_t> bytes;
    for (const RibbonSegment& segment : segments_) bytes.push_back(segment.bytes);
    const std::vector<double> widths = ribbonWidths(bytes, static_cast<std::int64_t>(freeBytes_), width());

    double left = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const double right = left + widths[i];
        const bool last = right > width() - 0.5;
        const QColor color = i < bytes.size() ? segments_.at(static_cast<qsizetype>(i)).color : freeColor_;
        painter.setBrush(color.isValid() ? color : otherColor_);
        if (widths[i] > 0)
            painter.drawPath(barPath({left, 0, widths[i], height()}, left == 0 ? outerCorner : innerCorner,
                                     last ? outerCorner : innerCorner));
        left = right;
    }
}

}  // namespace zelk

#include "moc_RibbonPicture.cpp"
