// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>

namespace zelk {

/// How texts that stand apart on screen are said in one breath to somebody who does not see them.
class Spoken : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// With pauses between them; empty ones are left out.
    Q_INVOKABLE static QString joined(QStringList texts);
};

}  // namespace zelk
