// SPDX-License-Identifier: MIT
// Applications that are files of the user's own: nobody but the user put them there, and the Trash removes them.
#pragma once

#include <string_view>

#include "system/apps/AppSearch.h"

namespace zelk {

/// Whether a file that begins with these bytes, at least 11, is an AppImage.
bool isAppImage(std::string_view start);

/// Adds the AppImages in the folders where people keep them and those that a desktop entry of the user's starts.
/// Blocking.
void findAppImages(const AppSearch& search, AppFindings& findings);

/// Adds the folders in the home that an application was unpacked into: a desktop entry of the user's starts a program
/// in it, and no other entry names anything there. Not what lies in a hidden folder, in the home itself, in a folder
/// for other things or in one that is kept the same elsewhere, nor a project under version control or a part of one; of
/// two nested folders neither. After findAppImages(). Blocking.
void findUnpacked(const AppSearch& search, AppFindings& findings);

/// What stands against removing an AppImage or an unpacked application now: it is looked for again by the same rules,
/// since the list may be hours old. Blocking.
AppObstacle obstacleOfOwn(const Platform& platform, const AppEntry& app);

}  // namespace zelk
