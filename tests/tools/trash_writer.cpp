// SPDX-License-Identifier: MIT
// Trashes an item, restores one or empties the Trash below a home folder. The durability tests run it under strace and
// make each of its system calls fail. `trash_writer trash HOME ITEM`: status 0 if it reports the item as trashed, 1 if
// not; `trash_writer restore HOME ITEM` trashes it first: status 0 if it reports the item as restored, 1 if not;
// `trash_writer empty HOME`: status is the number of deleted entries; `trash_writer together HOME ITEM...` trashes
// items on a thread each: status is the number of failures.
#include <unistd.h>

#include <atomic>
#include <optional>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/linux/trash/LinuxTrash.h"

namespace {

int trashTogether(zelk::LinuxTrash& trash, const std::vector<std::string>& items) {
    std::atomic<int> failed{0};
    std::vector<std::thread> threads;
    threads.reserve(items.size());
    for (const std::string& item : items)
        threads.emplace_back([&, item] { failed += trash.trash(zelk::ItemPath::from(item).value()).failure ? 1 : 0; });
    for (std::thread& thread : threads) thread.join();
    return failed;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 99;
    zelk::LinuxTrash trash(argv[2]);
    const std::string_view what = argv[1];
    const auto item = argc > 3 ? zelk::ItemPath::from(argv[3]) : std::nullopt;
    const auto trashed = what == "restore" && item ? trash.trash(*item).item : std::nullopt;
    // The test counts calls from here, excluding those of the loader and sanitizers.
    static_cast<void>(::access("/trash-writer-begins", F_OK));
    int status = 99;
    if (what == "empty") status = static_cast<int>(trash.empty());
    if (what == "trash" && item) status = trash.trash(*item).failure ? 1 : 0;
    if (what == "restore" && trashed) status = trash.restore(*trashed) ? 1 : 0;
    if (what == "together") status = trashTogether(trash, {argv + 3, argv + argc});
    // Exit at once: leak checkers do not work under a tracer.
    ::_exit(status);
}
