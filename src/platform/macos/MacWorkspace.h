// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

namespace zelk {

/// The desktop through NSWorkspace.
class MacWorkspace : public Workspace {
public:
    std::vector<std::string> runningApplications() override;
    void reveal(const std::vector<std::string>& paths) override;
    void openURL(const std::string& url) override;
    std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side) override;
    std::optional<IconPixels> entryIcon(const std::string& nameOrPath, int side) override;
};

}  // namespace zelk
