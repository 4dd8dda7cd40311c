// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

namespace zelk {

/// What desktops know the application by: its name on the bus and that of its desktop entry.
QString applicationId();

/// Sets the application's name, that of its desktop entry and its default font, which all texts inherit. Call once,
/// after creating the QApplication.
void dressApplication();

/// The application's icon: a drive on the accent gradient.
QIcon applicationIcon();

/// The drive alone, for the tray.
QIcon statusIcon();

/// Registers the QML modules. May be called repeatedly.
void registerInterface();

}  // namespace zelk
