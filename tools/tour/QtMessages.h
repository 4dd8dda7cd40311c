// SPDX-License-Identifier: MIT
// What Qt and the QML engine complain about. They print it and go on, so a screen may be empty without anything
// failing: whoever drives the window for a test or a picture asks here, and fails.
#pragma once

#include <QString>
#include <QStringList>

namespace zelk::tour {

/// From now on every warning and error of Qt, and every message of the QML engine of whatever kind, is kept as well as
/// printed; but what the platform without a display says of itself is neither. Threads may complain at any time.
void keepQtMessages();

/// Those kept since the last call, each beginning with the file and line it speaks of where that is known.
QStringList takeQtMessages();

}  // namespace zelk::tour
