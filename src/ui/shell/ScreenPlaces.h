// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>

#include "state/Screen.h"

namespace zelk {

class AppModel;
class Motion;
struct WindowServices;

/// What a screen's model may be made of. All of it outlives the model.
struct ScreenContext {
    AppModel& app;
    const WindowServices& services;
    const Motion& motion;
};

/// Where a screen lives: its view, which takes the model that `make` gives in a required property.
struct ScreenPlace {
    Screen screen;
    const char* view;      ///< the QML file, without its extension
    const char* property;  ///< the name of the model in the view
    std::unique_ptr<QObject> (*make)(const ScreenContext&);
};

/// The screen's line in the one table of screens.
const ScreenPlace& placeOf(Screen screen);

}  // namespace zelk
