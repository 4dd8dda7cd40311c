// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QRectF>
#include <QStaticText>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ui/charts/BubbleModel.h"
#include "ui/charts/CirclePacking.h"

class QPainter;

namespace zelk {

/// The slice of each circle, by index. If several slices share an id, the first; nullptr if none has it.
using ShownSlices = std::vector<const BubbleSlice*>;

/// Both arguments must outlive the result.
ShownSlices slicesOf(const std::vector<PackedCircle>& circles, const std::vector<BubbleSlice>& slices);

/// Elides the label to at most `room`: whole if it fits, else the longest beginning that fits with "…" appended; empty
/// if not even one character does. Cuts between grapheme clusters, so that no accent or emoji is split. `widthOf`
/// measures a text. `slack` is how much narrower a text may be than a shorter beginning of it, because of ligatures.
/// Even a label of hundreds of characters takes only a dozen measurements of short texts.
QString fittedLabel(const QString& label, double room, double slack,
                    const std::function<double(const QString&)>& widthOf);

/// The font of a text: semibold for labels, medium and, where the system has one, rounded for sizes.
enum class BubbleFont { label, size };

/// Measures and paints texts in the system font at whole pixel sizes: every other size would create another font,
/// dozens per second while a chart is resized. Caches shaped texts, so keep one instance for texts that recur in every
/// frame. Not thread-safe.
class BubbleTexts {
public:
    /// `size` is rounded to a whole pixel size of at least 1.
    double width(const QString& text, BubbleFont kind, double size);
    /// Paints the soft shadow of a text, so that white is readable on a bubble of any colour. Call it before write().
    void shade(QPainter& painter, QPointF center, const QString& text, BubbleFont kind, double size);
    /// Paints the text centred on `center`.
    void write(QPainter& painter, QPointF center, const QString& text, BubbleFont kind, double size,
               const QColor& color);

private:
    struct Face {
        BubbleFont kind;
        int size;

        bool operator==(const Face&) const = default;
    };
    struct Line {
        QString text;
        Face face;

        bool operator==(const Line&) const = default;
        friend size_t qHash(const Line& line, size_t seed = 0) {
            return qHashMulti(seed, line.text, static_cast<int>(line.face.kind), line.face.size);
        }
    };

    static Face faceOf(BubbleFont kind, double size);
    const QFont& fontOf(const Face& face);

    QFont system_;  // the font that the others derive from
    std::vector<std::pair<Face, QFont>> fonts_;
    // A map paints a few dozen texts; eliding a long name measures several more for each.
    QCache<Line, double> widths_{2'000};
    QCache<Line, QStaticText> shaped_{200};
    QCache<Line, QImage> shadows_{200};
    double shadowScale_ = 0;  // of shadows_: device pixels per point
};

struct BubbleLook {
    bool dark = true;      ///< the theme
    double textScale = 1;  ///< factor of the smallest and largest font sizes
};

/// A line of text in a bubble; empty if it does not fit.
struct BubbleText {
    QString text;
    QPointF middle;
    double size = 0;

    bool operator==(const BubbleText&) const = default;
};

/// The contents of a bubble that fit into it, in the chart's points.
struct BubbleFace {
    QRectF icon;  ///< null without one
    BubbleText label;
    BubbleText bytes;

    bool operator==(const BubbleFace&) const = default;
};

/// `widthOf` measures a text in a font and size.
BubbleFace bubbleFace(const PackedCircle& circle, const BubbleSlice& slice, double textScale,
                      const std::function<double(const QString&, BubbleFont, double)>& widthOf);

/// The indices of the circles to paint, in painting order. Skips circles without a slice and those outside `clip`; a
/// null `clip` keeps all.
std::vector<std::size_t> paintedBubbles(const std::vector<PackedCircle>& circles, const ShownSlices& slices,
                                        const QRectF& clip);

/// Paints the circles as glass balls, later ones on top.
void drawBubbles(QPainter& painter, const std::vector<PackedCircle>& circles, const ShownSlices& slices,
                 const std::optional<std::string>& hoveredID, const BubbleLook& look, BubbleTexts& texts);

/// Paints the focus ring of a bubble, with an outline that separates it from the bubbles below.
void drawBubbleFocus(QPainter& painter, const PackedCircle& circle, const QColor& line, const QColor& ground);

/// The area that a bubble paints, including its shadow and focus ring.
QRectF bubbleBox(const PackedCircle& circle);

}  // namespace zelk
