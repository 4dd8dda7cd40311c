// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>

#include "state/Screen.h"

namespace zelk {

class AppModel;
struct WindowServices;

/// What the models of screens are created from. Outlives them.
struct ScreenContext {
    AppModel& app;
    const WindowServices& services;
};

/// Describes a screen: its view, and a factory for the model that the view takes as a required property.
struct ScreenPlace {
    Screen screen;
    const char* view;      ///< the QML file, without its extension
    const char* property;  ///< the name of the model in the view
    std::unique_ptr<QObject> (*make)(const ScreenContext&);
};

/// The screen's row in the table of screens.
const ScreenPlace& placeOf(Screen screen);

}  // namespace zelk
