// SPDX-License-Identifier: MIT
#include "platform/posix/RemoveEntry.h"

#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <optional>

#include "platform/Translation.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/FileStatus.h"
#include "platform/posix/FolderMounts.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/OpenParent.h"
#include "platform/posix/RemovalCrew.h"
#include "platform/posix/RemovalHelpers.h"
#include "platform/posix/RemovalPermit.h"

namespace zelk {

Failure removeEntry(int parent, const std::string& name, MountsInside inside) {
    const std::optional<FileStatus> above = fileStatus(parent);
    const std::optional<FileStatus> item = fileStatus(parent, name);
    if (!above || !item) return notRemoved(name, systemText(errno));
    if (item->mount != above->mount) return notRemoved(name, volumeIsThere());
    if (!item->isDirectory()) {
        if (::unlinkat(parent, name.c_str(), 0) == 0) return std::nullopt;
        return notRemoved(name, systemText(errno));
    }
    if (inside == MountsInside::unknown && FolderMounts(parent).areIn(name, item->mount))
        return notRemoved(name, translated("Failure", "another volume is mounted in it"));
    return RemovalCrew(parent, name, {}).run();
}

Failure removeItem(const ItemPath& item) {
    const RemovalPermit permit;
    const Descriptor parent = openParent(item);
    if (!parent) return notRemoved(item.name(), reasonOfParent(item, errno));
    return removeEntry(parent.get(), std::string(item.name()));
}

std::size_t removeEntriesOf(const Descriptor& folder) {
    if (!folder) return 0;
    const auto names = directoryNames(Descriptor(openDirectoryBeneath(folder.get(), "")));
    if (!names) return 0;
    std::atomic<std::size_t> removed{0};
    removeInRanges(names->size(), [&](std::size_t first, std::size_t end) {
        for (std::size_t number = first; number < end; ++number) {
            const RemovalPermit permit;
            if (!removeEntry(folder.get(), (*names)[number])) ++removed;
        }
    });
    return removed;
}

}  // namespace zelk
