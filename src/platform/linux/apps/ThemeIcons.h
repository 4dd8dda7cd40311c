// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/Workspace.h"

namespace zelk {

/// Icons of the desktop's theme by file type, which is derived from the file name. Main thread.
class ThemeIcons {
public:
    /// Absent if the theme has none, and in a program without a GUI.
    std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side);

private:
    /// Many files share few icons, and finding one in the theme reads the disk: look each up once, including missing
    /// ones.
    std::map<std::pair<std::string, int>, std::optional<IconPixels>> known_;
};

}  // namespace zelk
