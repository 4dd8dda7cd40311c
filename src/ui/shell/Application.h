// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace zelk {

/// Names the application and gives it its one font, which every text of the interface takes up. Call once, behind the
/// QApplication.
void dressApplication();

/// The mark of the house: a drive on the accent gradient.
QIcon applicationIcon();

/// The drive alone, as a tray shows it.
QIcon statusIcon();

/// Makes the QML modules of the interface known. May be called more than once.
void registerInterface();

}  // namespace zelk
