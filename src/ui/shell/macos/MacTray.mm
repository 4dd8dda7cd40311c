// SPDX-License-Identifier: MIT
#include "ui/shell/Tray.h"

namespace zelk {

namespace {

/// The menu bar, which every session has.
class MenuBarTray : public Tray {
public:
    void look() override { setThere(true); }
};

}  // namespace

std::unique_ptr<Tray> desktopTray() {
    return std::make_unique<MenuBarTray>();
}

}  // namespace zelk
