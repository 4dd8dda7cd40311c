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
    /// A number of bytes in the format of the visible texts.
    Q_INVOKABLE static QString bytes(double count);
};

}  // namespace zelk
