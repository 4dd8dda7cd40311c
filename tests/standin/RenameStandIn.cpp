// SPDX-License-Identifier: MIT
#include <stdio.h>

#include <cerrno>

#include "standin/sys/stdio.h"

namespace zelk {

std::function<int(unsigned)>& RenameStandIn::rule() {
    thread_local std::function<int(unsigned)> rule;
    return rule;
}

unsigned& RenameStandIn::calls() {
    thread_local unsigned calls = 0;
    return calls;
}

}  // namespace zelk

/// Like that of macOS, which replaces an existing item unless told not to.
int renameatx_np(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    const unsigned call = zelk::RenameStandIn::calls()++;
    const int error = zelk::RenameStandIn::rule() ? zelk::RenameStandIn::rule()(call) : 0;
    if (error != 0) {
        errno = error;
        return -1;
    }
    return ::renameat2(fromFolder, from, toFolder, to, (flags & RENAME_EXCL) != 0 ? RENAME_NOREPLACE : 0);
}
