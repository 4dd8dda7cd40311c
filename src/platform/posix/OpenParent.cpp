// SPDX-License-Identifier: MIT
#include "platform/posix/OpenParent.h"

#include <cerrno>

#include "platform/Translation.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/OpenDirectory.h"

namespace zelk {

Descriptor openParent(const ItemPath& item) {
    Descriptor root(openForLookups(item.root()));
    if (!root || item.way().empty()) return root;
    return Descriptor(openForLookupsBeneath(root.get(), item.way()));
}

int errorOnWay(const ItemPath& item) {
    return item.way().empty() || openParent(item) ? 0 : errno;
}

std::string reasonOfParent(const ItemPath& item, int error) {
    const bool swapped = !item.way().empty() && (error == ELOOP || error == ENOTDIR);
    return swapped ? translated("Failure", "the folder that it was found in is no longer there") : systemText(error);
}

}  // namespace zelk
