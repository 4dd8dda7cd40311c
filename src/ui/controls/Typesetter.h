// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QFont>
#include <QStaticText>
#include <QString>
#include <utility>
#include <vector>

#include "ui/controls/Canvas.h"

class QPainter;

namespace zelk {

/// Lines of text in the system's font, in whole sizes: any other one would be a font of its own, and a chart that grows
/// would make dozens a second. A text that was measured or written before is not shaped again, so whoever draws the
/// same ones with every frame keeps one. In one thread at a time.
class Typesetter {
public:
    double width(const QString& text, const Lettering& lettering);
    /// With its middle at `center`.
    void write(QPainter& painter, QPointF center, const QString& text, const Lettering& lettering, const QColor& color);

private:
    struct Line {
        QString text;
        Lettering lettering;  // of a whole size

        bool operator==(const Line&) const = default;
        friend size_t qHash(const Line& line, size_t seed = 0) {
            return qHashMulti(seed, line.text, line.lettering.size, static_cast<int>(line.lettering.weight),
                              line.lettering.rounded);
        }
    };

    const QFont& fontOf(const Lettering& whole);

    QFont system_;  // that the rest was made from
    std::vector<std::pair<Lettering, QFont>> fonts_;
    // A map of bubbles writes a few dozen lines; finding where a long name must end measures some for each.
    QCache<Line, double> widths_{2'000};
    QCache<Line, QStaticText> shaped_{200};
};

}  // namespace zelk
