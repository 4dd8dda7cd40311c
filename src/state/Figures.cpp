// SPDX-License-Identifier: MIT
#include "state/Figures.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>

#include "platform/ByteFormat.h"
#include "state/Isolation.h"

namespace zelk {

QString byteFigure(std::int64_t bytes, const QLocale& locale) {
    constexpr std::int64_t firstWithUnit = 1000;
    if (bytes == 1) return isolated(QCoreApplication::translate("Figures", "1 byte"));
    if (bytes < firstWithUnit)
        return isolated(QCoreApplication::translate("Figures", "%n bytes", nullptr, forPlural(bytes)));
    return isolated(QString::fromStdString(byteText(bytes, locale.decimalPoint().toStdString())));
}

QString groupedFigure(std::int64_t count, const QLocale& locale) {
    return isolated(locale.toString(static_cast<qlonglong>(count)));
}

QString percentFigure(std::int64_t percent, const QLocale& locale) {
    const QString number = locale.toString(static_cast<qlonglong>(percent));
    return isolated(QCoreApplication::translate("Figures", "%1%", "a share").arg(number));
}

int forPlural(std::int64_t count) {
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    // The last digits decide in the languages that have many forms.
    constexpr std::int64_t period = 1'000'000;
    return static_cast<int>(count > most ? period + count % period : std::max<std::int64_t>(count, 0));
}

}  // namespace zelk
