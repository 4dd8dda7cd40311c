// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/Workspace.h"

namespace zelk {

/// The pictures of the desktop's icon theme, by what a file's name says of its type. Main thread.
class ThemeIcons {
public:
    /// Absent without a theme that has one, and in a program without windows.
    std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side);

private:
    /// Many files share few pictures, and finding one in the theme reads the disk: each is looked for once, also one
    /// that is not there.
    std::map<std::pair<std::string, int>, std::optional<IconPixels>> known_;
};

}  // namespace zelk
