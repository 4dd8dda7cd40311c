// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace zelk {

/// How much larger than drawn a person wants to read, as QML reads it: one per engine. Every text of the house has its
/// size multiplied by it (Words and FigureText do so), and the layouts follow the texts. Main thread.
class TextScale : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(qreal factor READ factor WRITE setFactor NOTIFY factorChanged FINAL)

public:
    static constexpr qreal smallest = 1;
    static constexpr qreal largest = 2;

    using QObject::QObject;

    qreal factor() const { return factor_; }
    /// Clamped to what the layouts bear.
    void setFactor(qreal factor);

signals:
    void factorChanged();

private:
    qreal factor_ = 1;
};

}  // namespace zelk
