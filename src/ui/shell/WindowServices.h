// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ui/shell/NativeApplication.h"
#include "ui/shell/Tray.h"

namespace zelk {

class Preferences;
class Workspace;

/// System services for the windows, besides the AppModel. The first-run sheets need preferences and a workspace.
struct WindowServices {
    Preferences* preferences = nullptr;
    Workspace* workspace = nullptr;
    std::function<bool()> accessGranted;  ///< whether the whole drive may be read
    std::function<std::optional<std::string>()> pickFolder = [] { return std::nullopt; };
    std::function<void()> quit = [] {};
    BundleInfo bundle;
    std::function<std::unique_ptr<Tray>()> tray = desktopTray;
};

}  // namespace zelk
