// SPDX-License-Identifier: MIT
// What the sources of applications on Linux share: each adds what it finds.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/FolderPath.h"
#include "platform/Platform.h"
#include "reclaim/AppEntry.h"
#include "system/apps/DesktopFiles.h"

namespace zelk {

/// A program that answers a question: nobody types into it, and it may say much. What it complains of is not heard.
inline constexpr ChildStreams askedStreams{
    .inheritsInput = false, .errorsWithOutput = false, .readsWhileRunning = true};

/// Where to look. Constant during a search.
struct AppSearch {
    explicit AppSearch(const Platform& services)
        : platform(services),
          home(services.locations.home()),
          xdg(services.locations.xdgHomes().value_or(XdgHomes())),
          programFolders(services.locations.programFolders()),
          locales(services.locations.entryLocales()),
          own(readDesktopFiles(services.files, pathIn(xdg.data, "applications"), locales)) {}

    Platform platform;
    std::string home;
    XdgHomes xdg;
    std::vector<std::string> programFolders;
    std::vector<std::string> locales;
    std::vector<DesktopFile> own;  ///< the user's own desktop entries
};

/// What was found so far.
struct AppFindings {
    std::vector<AppEntry> apps;
    NameClaims claims;
    std::set<std::string> attributed;  ///< the paths of the desktop entries whose application is known

    /// Notes that these entries start the application at `url`.
    void claim(const std::vector<const DesktopFile*>& entries, const std::string& url) {
        for (const DesktopFile* one : entries) {
            claims.claim(one->id, url);
            claims.claim(one->programName(), url);
            attributed.insert(one->path);
        }
    }
};

}  // namespace zelk
