// SPDX-License-Identifier: MIT
// Takes away what it is told to, through the application's own code, and prints {"seconds":…,"items":…,"failed":…}:
//
//   removal remove PATH        removes PATH for good
//   removal empty HOME         empties the Trash of the home folder HOME
//   removal trash HOME FOLDER  moves every entry of FOLDER to the Trash of HOME, as a clean-up does
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/ItemPath.h"
#include "platform/NativePlatform.h"
#include "reclaim/Cleaner.h"

namespace {

using namespace zelk;

struct Done {
    std::size_t items = 0;
    std::size_t failed = 0;
};

Done removeForGood(const Platform& platform, const std::string& path) {
    const std::optional<ItemPath> item = ItemPath::from(path);
    const Failure failure = item ? platform.files.remove(*item) : Failure("no path of an item");
    if (failure) std::fprintf(stderr, "removal: %s\n", failure->c_str());
    return {1, failure ? 1U : 0U};
}

Done emptyTrash(const Platform& platform) {
    const std::size_t there = platform.trash.list().value_or(std::vector<std::string>()).size();
    return {there, there - std::min(there, Cleaner::emptyTrashContents(platform.trash))};
}

Done moveToTrash(const Platform& platform, const std::string& folder) {
    std::vector<Reclaimable> items;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        Reclaimable& item = items.emplace_back();
        item.id = item.path = entry.path().string();
        item.categoryID = "python_pycache";
    }
    std::promise<std::vector<Cleaner::Result>> cleaned;
    Cleaner::cleanAll(std::move(items), false, platform,
                      [&cleaned](auto results) { cleaned.set_value(std::move(results)); });
    const std::vector<Cleaner::Result> results = cleaned.get_future().get();
    const auto failed = std::count_if(results.begin(), results.end(), [](const Cleaner::Result& result) {
        return std::holds_alternative<Cleaner::Failed>(result.status);
    });
    return {results.size(), static_cast<std::size_t>(failed)};
}

}  // namespace

int main(int count, char** words) {
    const std::string what = count > 2 ? words[1] : "";
    const bool valid = what == "trash" ? count == 4 : count == 3 && (what == "remove" || what == "empty");
    if (!valid) {
        std::fprintf(stderr, "usage: removal remove PATH | empty HOME | trash HOME FOLDER\n");
        return 2;
    }
    NativePlatform native(what == "remove" ? std::string() : words[2]);
    const auto start = std::chrono::steady_clock::now();
    Done done;
    if (what == "remove") done = removeForGood(native.platform(), words[2]);
    if (what == "empty") done = emptyTrash(native.platform());
    if (what == "trash") done = moveToTrash(native.platform(), words[3]);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    std::printf("{\"seconds\":%.6f,\"items\":%zu,\"failed\":%zu}\n", taken.count(), done.items, done.failed);
    std::fflush(stdout);
    const int status = done.failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    if (!native.drain(10)) std::_Exit(status);
    return status;
}
