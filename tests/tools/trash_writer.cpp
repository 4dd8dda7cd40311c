// SPDX-License-Identifier: MIT
// Trashes an item, or empties the Trash, below a home folder and ends: what the durability test runs under strace, to
// let each of its system calls fail in turn. `trash_writer trash HOME ITEM`, status 0 if it says that the item is in
// the Trash and 1 if it says that it is not; `trash_writer empty HOME`, status the number of entries removed.
#include <unistd.h>

#include <string_view>

#include "platform/linux/trash/LinuxTrash.h"

int main(int argc, char** argv) {
    if (argc < 3) return 99;
    zelk::LinuxTrash trash(argv[2]);
    // Where the test begins to count: what the loader and the sanitizers call before is none of its business.
    static_cast<void>(::access("/trash-writer-begins", F_OK));
    int status = 99;
    if (std::string_view(argv[1]) == "empty") {
        status = static_cast<int>(trash.empty());
    } else if (argc > 3) {
        const auto item = zelk::ItemPath::from(argv[3]);
        if (item) status = trash.trash(*item) ? 1 : 0;
    }
    // At once: leak checkers do not run under a tracer.
    ::_exit(status);
}
