// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QLocale>
#include <QObject>
#include <QString>
#include <cstdint>

#include "ui/theme/DisplayText.h"

namespace zelk {

/// What stands inside the scan button in one of its phases, from the top down; an empty text takes no place. Sizes in
/// points.
struct ScanFace {
    Q_GADGET
    QML_VALUE_TYPE(scanFace)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT FINAL)
    Q_PROPERTY(int symbolSize MEMBER symbolSize CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(int titleSize MEMBER titleSize CONSTANT FINAL)
    Q_PROPERTY(QString caption MEMBER caption CONSTANT FINAL)
    Q_PROPERTY(int captionSize MEMBER captionSize CONSTANT FINAL)
    Q_PROPERTY(QString hint MEMBER hint CONSTANT FINAL)
    Q_PROPERTY(int hintSize MEMBER hintSize CONSTANT FINAL)

public:
    QString symbol;
    int symbolSize = 0;
    QString title;
    int titleSize = 0;
    QString caption;
    int captionSize = 0;
    QString hint;
    int hintSize = 0;

    static ScanFace idle();
    static ScanFace scanning(std::int64_t bytes, const QLocale& locale = userLocale());
    static ScanFace finished(std::int64_t recoverable, const QLocale& locale = userLocale());

    bool operator==(const ScanFace&) const = default;
};

}  // namespace zelk
