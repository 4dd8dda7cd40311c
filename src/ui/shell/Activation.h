// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWindow>

namespace zelk {

/// By what a desktop recognizes that somebody asked for an application, so that its window may take the focus. Each
/// text is empty if the desktop gave none.
struct Activation {
    QString token;      ///< of Wayland: $XDG_ACTIVATION_TOKEN of the program that was started
    QString startupId;  ///< of X11: $DESKTOP_STARTUP_ID of the program that was started

    bool operator==(const Activation&) const = default;
};

/// The activation that this process was started with. Call before creating the application object, which takes it out
/// of the environment.
Activation activationOfThisStart();

/// Gives a visible window the focus, and tells the desktop that the start it was waiting for is over. Without an
/// activation the request counts as the user's own. Main thread.
void activateWindow(QWindow& window, const Activation& by);

}  // namespace zelk
