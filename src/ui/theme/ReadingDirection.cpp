// SPDX-License-Identifier: MIT
#include "ui/theme/ReadingDirection.h"

#include <QGuiApplication>

namespace zelk {

bool readsFromRight() {
    return QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

ReadingDirection::ReadingDirection(QObject* parent) : QObject(parent) {
    if (qGuiApp != nullptr)
        connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &ReadingDirection::changed);
}

}  // namespace zelk

#include "moc_ReadingDirection.cpp"
