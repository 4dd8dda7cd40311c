// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleDrawing.h"

#include <algorithm>

#include "ui/charts/LabelFitting.h"
#include "ui/controls/Canvas.h"
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

Shadow shadowOf(double r, bool dark) {
    return {withOpacity(Qt::black, dark ? 0.5 : 0.22), std::max(0.16 * r, 3.0), {0, std::max(0.08 * r, 1.0)}};
}

/// One bubble. Its lengths are shares of its radius, so that a ball of any size is the same ball.
class Ball {
public:
    Ball(Canvas& canvas, const PackedCircle& circle, const BubbleSlice& slice, const BubbleLook& look)
        : canvas_(canvas), slice_(slice), look_(look), center_(circle.center.x, circle.center.y), r_(circle.radius) {}

    void draw(bool hovered) const {
        drawGlass();
        drawEmphasis(hovered);
        if (!slice_.icon.isNull() && r_ >= leastForIcon) {
            drawIcon();
        } else if (r_ >= leastForLabel) {
            const double size = std::clamp(0.4 * r_, 9 * look_.textScale, 15 * look_.textScale);
            drawLabel(r_ >= leastForSize ? -8 : 0, size);
        }
        if (r_ >= leastForSize) drawSize();
    }

private:
    QPointF below(double distance) const { return center_ + QPointF(0, distance); }

    void drawGlass() const {
        const QColor& color = slice_.color;
        canvas_.shadowedDisc(center_, r_, Paint::solid(color), shadowOf(r_, look_.dark));
        canvas_.disc(center_, r_,
                     Paint::radial(center_ - QPointF(0.3 * r_, 0.36 * r_), 1.55 * r_,
                                   {{0, mix(color, Qt::white, 0.42)}, {1, mix(color, Qt::black, 0.28)}}));
        canvas_.ring(center_, r_ + 1, 1.5, Paint::solid(withOpacity(mix(color, Qt::white, 0.55), 0.7)));
        canvas_.ring(center_, r_, 1, Paint::solid(withOpacity(Qt::white, 0.12)));
        if (r_ >= leastForHighlight) {
            canvas_.ellipse({center_.x() - 0.46 * r_, center_.y() - 0.74 * r_, 0.92 * r_, 0.48 * r_},
                            Paint::solid(withOpacity(Qt::white, 0.16)));
        }
    }

    void drawEmphasis(bool hovered) const {
        if (slice_.selected)
            canvas_.ring(center_, r_, 3, Paint::solid(Qt::white));
        else if (hovered)
            canvas_.ring(center_, r_, 2, Paint::solid(withOpacity(Qt::white, 0.85)));
    }

    void drawIcon() const {
        const bool labelled = r_ >= leastForIconAndLabel;
        const double side = (labelled ? 0.62 : 0.85) * r_;
        const QPointF middle = below(labelled ? -0.24 * r_ : 0);
        canvas_.image({middle.x() - side / 2, middle.y() - side / 2, side, side}, slice_.icon);
        if (labelled) drawLabel((r_ >= leastForSize ? 0.3 : 0.42) * r_, std::min(0.26 * r_, 15 * look_.textScale));
    }

    void drawLabel(double offset, double size) const {
        const Lettering lettering{size, Lettering::Weight::semibold, false};
        const QString text = fittedLabel(slice_.label, widestText(), size,
                                         [&](const QString& part) { return canvas_.textWidth(part, lettering); });
        if (!text.isEmpty()) canvas_.text(below(offset), text, lettering, Qt::white);
    }

    void drawSize() const {
        const Lettering lettering{std::min(0.2 * r_, 13 * look_.textScale), Lettering::Weight::medium, true};
        const QString text = byteFigure(slice_.bytes);
        if (canvas_.textWidth(text, lettering) <= widestText())
            canvas_.text(below(0.52 * r_), text, lettering, withOpacity(Qt::white, 0.95));
    }

    double widestText() const { return 1.5 * r_; }

    Canvas& canvas_;
    const BubbleSlice& slice_;
    const BubbleLook& look_;
    QPointF center_;
    double r_;
};

}  // namespace

SlicesByID byID(const std::vector<BubbleSlice>& slices) {
    SlicesByID found;
    for (const BubbleSlice& slice : slices) found.emplace(slice.id, &slice);
    return found;
}

void drawBubbles(Canvas& canvas, const std::vector<PackedCircle>& circles, const SlicesByID& slices,
                 const std::optional<std::string>& hoveredID, const BubbleLook& look) {
    for (const PackedCircle& circle : circles) {
        const auto slice = slices.find(circle.id);
        if (slice != slices.end() && canvas.shows(bubbleBox(circle)))
            Ball(canvas, circle, *slice->second, look).draw(circle.id == hoveredID);
    }
}

void drawBubbleFocus(Canvas& canvas, const PackedCircle& circle, const QColor& line, const QColor& ground) {
    const QPointF center(circle.center.x, circle.center.y);
    const double radius = std::max(circle.radius, 0.0) + focusOffset;
    canvas.ring(center, radius, focusWidth + 4, Paint::solid(ground));
    canvas.ring(center, radius, focusWidth, Paint::solid(line));
}

QRectF bubbleBox(const PackedCircle& circle) {
    const double radius = std::max(circle.radius, 0.0);
    const Shadow shadow = shadowOf(radius, true);
    // A blur fades out at one and a half times its own length.
    const double reach = radius + std::max(1.5 * shadow.blur + shadow.offset.y(), focusOffset + focusWidth) + 2;
    return {circle.center.x - reach, circle.center.y - reach, 2 * reach, 2 * reach};
}

}  // namespace zelk
