// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QFont>
#include <QImage>
#include <QStaticText>
#include <QString>
#include <functional>
#include <utility>
#include <vector>

class QPainter;

namespace zelk {

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

}  // namespace zelk
