// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as what the tools of Debian and flatpak print and as the folders of a user, and checks that
// root's shell gets only words that name a package.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "system/AdminLines.h"
#include "system/apps/DpkgStatus.h"
#include "system/apps/FlatpakApplications.h"
#include "system/apps/PackagedApplications.h"
#include "system/apps/UserFolders.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void checkPackages(std::string_view text) {
    const auto packages = zelk::parseDpkgPackages(text);
    int checked = 0;
    for (const auto& [name, package] : packages) {
        require(name == package.name && package.instances > 0);
        const auto line = zelk::removePackageLine(name);
        require(line && zelk::adminArguments(*line) == std::vector<std::string>({"remove-package", name}));
        if (++checked > 20) break;
        for (const std::string& other : zelk::packagesThatNeed(packages, name))
            require(other != name && packages.contains(other));
    }
    for (const auto& [path, owners] : zelk::parseDpkgOwners(text)) {
        require(path.starts_with('/') && !owners.empty());
        for (const std::string& owner : owners) require(zelk::isPackageName(owner));
    }
}

void checkFolders(std::string_view text) {
    const zelk::UserFolders folders = zelk::parseUserFolders(text, "/home/me");
    require(std::all_of(folders.all.begin(), folders.all.end(),
                        [](const std::string& folder) { return folder.starts_with('/') && folder != "/home/me"; }));
    require(folders.downloads.starts_with('/'));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkPackages(text);
    checkFolders(text);
    for (const std::string& name : zelk::parseAptChanges(text).removed) require(name.find('\n') == std::string::npos);
    zelk::parseFlatpakSize(text);
    return 0;
}
