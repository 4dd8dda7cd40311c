// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace zelk {

/// Faces beside the application's own, as QML names them.
class Typeface : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString fixed READ fixed CONSTANT FINAL)

public:
    using QObject::QObject;

    /// The system's face in which every character has one width, for figures that stand under each other.
    QString fixed() const;
};

}  // namespace zelk
