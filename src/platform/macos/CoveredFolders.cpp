// SPDX-License-Identifier: MIT
#include "platform/macos/CoveredFolders.h"

#include <algorithm>

namespace zelk {

CoveredFolders::CoveredFolders(std::string_view top, const std::vector<Mount>& table) {
    for (const Mount& mount : table) {
        if (!isMountedBelow({mount}, top)) continue;
        const bool isCoveredItself = std::any_of(table.begin(), table.end(), [&](const Mount& other) {
            return isMountedBelow({other}, top) && isMountedBelow({mount}, other.point);
        });
        if (isCoveredItself) continue;
        const std::size_t slash = mount.point.rfind('/');
        struct stat above;
        if (stat(slash == 0 ? "/" : mount.point.substr(0, slash).c_str(), &above) == 0)
            names_[{above.st_dev, above.st_ino}].insert(mount.point.substr(slash + 1));
    }
}

const CoveredFolders::Names* CoveredFolders::in(const struct stat& folder) const {
    if (names_.empty()) return nullptr;
    const auto found = names_.find({folder.st_dev, folder.st_ino});
    return found == names_.end() ? nullptr : &found->second;
}

}  // namespace zelk
