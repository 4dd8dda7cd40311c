// SPDX-License-Identifier: MIT
#include "ui/shell/Application.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <utility>

#include "ui/charts/HouseTile.h"
#include "ui/controls/DialogScope.h"
#include "ui/theme/SymbolItem.h"
#include "ui/theme/ZelkTheme.h"

// The generated registrations. Naming them here is also what links the modules in.
void qml_register_types_Zelk_Controls();
void qml_register_types_Zelk_Charts();
void qml_register_types_Zelk_App();

namespace zelk {

void dressApplication() {
    QGuiApplication::setApplicationName(QStringLiteral("Zelk"));
#ifndef Q_OS_MACOS
    QFont font(QStringLiteral("Inter"));
    font.setHintingPreference(QFont::PreferNoHinting);  // hints would pull its even spacing apart
    QGuiApplication::setFont(font);
#endif
}

QIcon applicationIcon() {
    QIcon icon;
    for (const int side : {32, 64, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintHouseTile(painter, side);
        const int drawn = side * 5 / 8;
        painter.drawImage(QPointF(side - drawn, side - drawn) / 2,
                          tintedSymbol(QStringLiteral("internaldrive"), AccentGradient::ink(), drawn));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon statusIcon() {
    // Light enough for a dark panel and dark enough for a light one; the system tints it where it can.
    QIcon icon;
    for (const int side : {22, 44})
        icon.addPixmap(QPixmap::fromImage(tintedSymbol(QStringLiteral("internaldrive"), QColor(152, 146, 168), side)));
    icon.setIsMask(true);
    return icon;
}

void registerInterface() {
    // A type registered again is another type: an engine would have every singleton twice.
    static bool registered = false;
    if (std::exchange(registered, true)) return;
    qml_register_types_Zelk_Controls();
    qml_register_types_Zelk_Charts();
    qml_register_types_Zelk_App();
    installDialogReading();
}

}  // namespace zelk
