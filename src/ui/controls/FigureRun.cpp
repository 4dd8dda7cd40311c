// SPDX-License-Identifier: MIT
#include "ui/controls/FigureRun.h"

#include <QStringView>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace zelk {

namespace {

/// A text with one number in it.
struct Figure {
    QString before;
    double number;
    int decimals;
    bool grouped;
    QString after;
};

std::optional<Figure> parse(const QString& text, const QLocale& locale) {
    const auto digit = [&](qsizetype at) { return at < text.size() && text.at(at).isDigit(); };
    qsizetype start = 0;
    while (start < text.size() && !digit(start)) ++start;
    if (start == text.size()) return std::nullopt;
    const auto isSeparator = [&](qsizetype at) {
        const QString mark = text.mid(at, 1);
        return (mark == locale.decimalPoint() || mark == locale.groupSeparator()) && digit(at + 1);
    };
    qsizetype end = start;
    while (digit(end) || (end < text.size() && isSeparator(end))) ++end;
    for (qsizetype at = end; at < text.size(); ++at)
        if (digit(at)) return std::nullopt;

    const QString written = text.mid(start, end - start);
    bool understood = false;
    const double number = locale.toDouble(written, &understood);
    if (!understood) return std::nullopt;
    const qsizetype point = written.indexOf(locale.decimalPoint());
    return Figure{text.left(start), number, point < 0 ? 0 : static_cast<int>(written.size() - point - 1),
                  written.contains(locale.groupSeparator()), text.mid(end)};
}

/// The bytes of a figure that is written as a byte count and as nothing else.
std::optional<double> bytesOf(const Figure& figure) {
    constexpr std::array units{"KB", "MB", "GB", "TB", "PB", "EB"};
    if (!figure.before.isEmpty()) return std::nullopt;
    if (figure.after == QStringLiteral(" bytes") || figure.after == QStringLiteral(" byte")) return figure.number;
    double scale = 1;
    for (const char* unit : units) {
        scale *= 1000;
        if (figure.after == QStringLiteral(" ") + QLatin1String(unit)) return figure.number * scale;
    }
    return std::nullopt;
}

}  // namespace

QString figureBetween(const QString& from, const QString& to, double share, const QLocale& locale) {
    if (share >= 1) return to;
    const std::optional<Figure> origin = parse(from, locale);
    const std::optional<Figure> target = parse(to, locale);
    if (!origin || !target) return to;
    const auto between = [share](double a, double b) { return a + (b - a) * share; };

    const std::optional<double> originBytes = bytesOf(*origin);
    const std::optional<double> targetBytes = bytesOf(*target);
    if (originBytes && targetBytes) return byteFigure(std::llround(between(*originBytes, *targetBytes)), locale);

    if (origin->before != target->before || origin->after != target->after) return to;
    QLocale written = locale;
    if (!origin->grouped && !target->grouped) written.setNumberOptions(QLocale::OmitGroupSeparator);
    return target->before +
           written.toString(between(origin->number, target->number), 'f',
                            std::max(origin->decimals, target->decimals)) +
           target->after;
}

}  // namespace zelk
