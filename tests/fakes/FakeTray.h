// SPDX-License-Identifier: MIT
#pragma once

#include "ui/shell/Tray.h"

namespace zelk::fakes {

/// A tray that comes and goes as a test says.
class FakeTray : public Tray {
public:
    void look() override {
        looked_ = true;
        setThere(wanted_);
    }
    /// From the first look on.
    void come(bool there) {
        wanted_ = there;
        if (looked_) setThere(there);
    }

private:
    bool wanted_ = false;
    bool looked_ = false;
};

}  // namespace zelk::fakes
