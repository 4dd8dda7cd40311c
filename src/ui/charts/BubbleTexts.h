// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QFont>
#include <QStaticText>
#include <QString>
#include <utility>
#include <vector>

class QPainter;

namespace zelk {

/// What a bubble's text is: its label is semibold; its size is medium, in the system's face with round ends, where it
/// has one.
enum class BubbleFont { label, size };

/// Lines of text in the system's font, in whole pixel sizes: any other one would be a font of its own, and a chart that
/// grows would make dozens a second. A text that was measured or written before is not shaped again, so whoever draws
/// the same ones with every frame keeps one. In one thread at a time.
class BubbleTexts {
public:
    /// `size` is the nearest whole one, and at least 1.
    double width(const QString& text, BubbleFont kind, double size);
    /// With its middle at `center`.
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

    QFont system_;  // that the rest was made from
    std::vector<std::pair<Face, QFont>> fonts_;
    // A map of bubbles writes a few dozen lines; finding where a long name must end measures some for each.
    QCache<Line, double> widths_{2'000};
    QCache<Line, QStaticText> shaped_{200};
};

}  // namespace zelk
