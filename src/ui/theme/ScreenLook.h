// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QCoreApplication>
#include <QString>

#include "state/Screen.h"

namespace zelk {

/// The title, subtitle, symbol and colour of a module. The colour does not depend on the theme.
struct ScreenLook {
    Q_GADGET
    QML_VALUE_TYPE(screenLook)
    Q_DECLARE_TR_FUNCTIONS(ScreenLook)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)

public:
    QString title;
    QString subtitle;  ///< may be empty
    QString symbol;
    QColor color;

    bool operator==(const ScreenLook&) const = default;
};

const ScreenLook& lookOf(Screen screen);

}  // namespace zelk
