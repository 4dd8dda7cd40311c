// SPDX-License-Identifier: MIT
#include "ui/shell/Application.h"

#include <QFont>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>

#include "ui/symbols/SymbolItem.h"
#include "ui/theme/ZelkTheme.h"

// The generated registrations. Naming them here is also what links the modules in.
void qml_register_types_Zelk_Theme();
void qml_register_types_Zelk_Symbols();
void qml_register_types_Zelk_Components();
void qml_register_types_Zelk_Survey();

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
        painter.setRenderHint(QPainter::Antialiasing);
        QLinearGradient gradient(0, 0, side, side);
        gradient.setColorAt(0, AccentGradient::from());
        gradient.setColorAt(1, AccentGradient::to());
        painter.setPen(Qt::NoPen);
        painter.setBrush(gradient);
        const double corner = side * 0.24;
        painter.drawRoundedRect(QRectF(0, 0, side, side), corner, corner);
        const int drawn = side * 5 / 8;
        painter.drawImage(QPointF(side - drawn, side - drawn) / 2,
                          tintedSymbol(QStringLiteral("internaldrive"), AccentGradient::ink(), drawn));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

void registerInterface() {
    qml_register_types_Zelk_Theme();
    qml_register_types_Zelk_Symbols();
    qml_register_types_Zelk_Components();
    qml_register_types_Zelk_Survey();
}

}  // namespace zelk
