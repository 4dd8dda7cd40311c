// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

namespace zelk {

class LinuxWorkspace : public Workspace {
public:
    std::vector<std::string> runningApplications() override { return {}; }
    void reveal(const std::vector<std::string>&) override {}
    void openURL(const std::string&) override {}
};

}  // namespace zelk
