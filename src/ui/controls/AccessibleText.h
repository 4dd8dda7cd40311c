// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>

namespace zelk {

/// Composes texts for screen readers.
class AccessibleText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Joins the non-empty texts with commas, which screen readers pause at.
    Q_INVOKABLE static QString joined(QStringList texts);
    /// This many bytes, as they are written too.
    Q_INVOKABLE static QString bytes(double count);
};

}  // namespace zelk
