// SPDX-License-Identifier: MIT
#include "ui/charts/LabelFitting.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <vector>

namespace zelk {

namespace {

/// Where each character ends.
std::vector<qsizetype> characterEnds(const QString& text) {
    std::vector<qsizetype> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype at = finder.toNextBoundary(); at > 0; at = finder.toNextBoundary()) ends.push_back(at);
    return ends;
}

}  // namespace

QString fittedLabel(const QString& label, double room, double slack,
                    const std::function<double(const QString&)>& widthOf) {
    // Measuring hundreds of characters takes long, and most that many are wider already where they begin.
    constexpr qsizetype aLot = 48;
    const bool tooLong = label.size() > aLot && widthOf(label.left(aLot)) > room + slack;
    if (label.isEmpty() || (!tooLong && widthOf(label) <= room)) return label;

    const std::vector<qsizetype> ends = characterEnds(label);
    const auto beginning = [&](std::size_t count) { return label.left(ends[count - 1]) + QStringLiteral("…"); };
    const auto hopeless = [&](std::size_t count) { return widthOf(beginning(count)) > room + slack; };

    // Between these two counts of characters lies the first that is beyond hope: found from below, where texts are
    // short, in steps that double, and then by halves.
    std::size_t fair = 0;
    std::size_t far = 1;
    while (far < ends.size() && !hopeless(far)) {
        fair = far;
        far *= 2;
    }
    far = std::min(far, ends.size());
    while (far - fair > 1) {
        const std::size_t middle = fair + (far - fair) / 2;
        (hopeless(middle) ? far : fair) = middle;
    }
    for (std::size_t count = far - 1; count > 0; --count) {
        QString shortened = beginning(count);
        if (widthOf(shortened) <= room) return shortened;
    }
    return {};
}

}  // namespace zelk
