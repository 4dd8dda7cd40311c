// SPDX-License-Identifier: MIT
// Trashes an item or empties the Trash below a home folder. The durability test runs it under strace and makes each of
// its system calls fail. `trash_writer trash HOME ITEM`: status 0 if it reports the item as trashed, 1 if not;
// `trash_writer empty HOME`: status is the number of deleted entries.
#include <unistd.h>

#include <string_view>

#include "platform/linux/trash/LinuxTrash.h"

int main(int argc, char** argv) {
    if (argc < 3) return 99;
    zelk::LinuxTrash trash(argv[2]);
    // The test counts calls from here, excluding those of the loader and sanitizers.
    static_cast<void>(::access("/trash-writer-begins", F_OK));
    int status = 99;
    if (std::string_view(argv[1]) == "empty") {
        status = static_cast<int>(trash.empty());
    } else if (argc > 3) {
        const auto item = zelk::ItemPath::from(argv[3]);
        if (item) status = trash.trash(*item) ? 1 : 0;
    }
    // Exit at once: leak checkers do not work under a tracer.
    ::_exit(status);
}
