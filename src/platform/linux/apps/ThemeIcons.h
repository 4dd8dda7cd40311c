// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/Workspace.h"

namespace zelk {

/// Icons of the desktop's theme by file type, which is derived from the file name, and those of applications. All are
/// absent in a program without a GUI. Main thread.
class ThemeIcons {
public:
    /// Absent if the theme has none.
    std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side);
    /// What a desktop entry names: a name in the theme or among the pictures that are in no theme, or the path of a
    /// picture. Absent if there is none, or none of a reasonable size.
    std::optional<IconPixels> entryIcon(const std::string& nameOrPath, int side);

private:
    /// Many files share few icons, and finding one in the theme reads the disk: look each up once, including missing
    /// ones.
    std::map<std::pair<std::string, int>, std::optional<IconPixels>> known_;
    std::map<std::pair<std::string, int>, std::optional<IconPixels>> entries_;
};

}  // namespace zelk
