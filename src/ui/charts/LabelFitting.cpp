// SPDX-License-Identifier: MIT
#include "ui/charts/LabelFitting.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <vector>

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

}  // namespace zelk
