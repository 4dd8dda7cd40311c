// SPDX-License-Identifier: MIT
#include "ui/shell/Application.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <clocale>
#include <utility>

#include "ui/charts/PaintedLayer.h"
#include "ui/controls/DialogScope.h"
#include "ui/theme/SymbolItem.h"
#include "ui/theme/ZelkTheme.h"

// Generated registration functions. Calling them also links the modules in.
void qml_register_types_Zelk_Controls();
void qml_register_types_Zelk_Charts();
void qml_register_types_Zelk_App();

namespace zelk {

QString applicationId() {
    return QStringLiteral("io.github.zelk.Zelk");
}

void dressApplication() {
    // Qt has set the user's locale for the C library too, by which the parser of JSON would read a fraction.
    std::setlocale(LC_NUMERIC, "C");
    QGuiApplication::setApplicationName(QStringLiteral("Zelk"));
    // The desktop finds the icon of the window in the entry of this name; on Wayland there is no other way.
    QGuiApplication::setDesktopFileName(applicationId());
#ifndef Q_OS_MACOS
    QFont font(QStringLiteral("Inter"));
    font.setHintingPreference(QFont::PreferNoHinting);  // hinting would distort the even spacing
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
    // A grey that is visible on dark and light panels; as a mask it is tinted where the system supports that.
    QIcon icon;
    for (const int side : {22, 44})
        icon.addPixmap(QPixmap::fromImage(tintedSymbol(QStringLiteral("internaldrive"), QColor(152, 146, 168), side)));
    icon.setIsMask(true);
    return icon;
}

void registerInterface() {
    // Registering twice would create second types, and engines would have every singleton twice.
    static bool registered = false;
    if (std::exchange(registered, true)) return;
    qml_register_types_Zelk_Controls();
    qml_register_types_Zelk_Charts();
    qml_register_types_Zelk_App();
    installDialogReading();
}

}  // namespace zelk
