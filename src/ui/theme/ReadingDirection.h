// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace zelk {

/// Whether the application reads from right to left: what the translation in use says, unless somebody sets it with
/// QGuiApplication::setLayoutDirection(). Main thread, or a render thread while the main thread waits for it.
bool readsFromRight();

/// The reading direction for views, one instance per QML engine; follows the application's. Anchors, positioners and
/// the templates of controls mirror themselves by LayoutMirroring, which each window sets from here. A view asks only
/// where it computes a position, or where an arrow key moves along a row. What is painted is mirrored as it was when it
/// was painted: the direction never changes while a window is open, except in tests. Main thread.
class ReadingDirection : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool mirrored READ mirrored NOTIFY changed FINAL)
    Q_PROPERTY(int rightward READ rightward NOTIFY changed FINAL)

public:
    explicit ReadingDirection(QObject* parent = nullptr);

    bool mirrored() const { return readsFromRight(); }
    /// What one step to the right adds to the index of an item in a row: 1, or -1 where rows begin at the right.
    int rightward() const { return mirrored() ? -1 : 1; }

signals:
    void changed();
};

}  // namespace zelk
