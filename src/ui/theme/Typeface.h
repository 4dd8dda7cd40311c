// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace zelk {

/// Font families other than the application's own.
class Typeface : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString fixed READ fixed CONSTANT FINAL)

public:
    using QObject::QObject;

    /// The system's monospaced family, for columns of numbers.
    QString fixed() const;
};

}  // namespace zelk
