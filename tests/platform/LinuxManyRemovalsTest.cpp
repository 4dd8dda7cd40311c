// SPDX-License-Identifier: MIT
// Thousands of concurrent removals in a process with few descriptors: none may fail because of that.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <thread>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/TestFiles.h"
#include "platform/linux/files/LinuxFileManager.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {

namespace {

namespace fs = std::filesystem;

class ManyRemovals : public testing::Test {
protected:
    static constexpr int many = 1'000;

    ManyRemovals() {
        for (int item = 0; item < many; ++item) zoo::makeFile(pathOf(item) + "/a/b/c/d/file");
    }

    std::string pathOf(int item) const { return temp / "items/" + std::to_string(item); }

    /// Removes each item on its own thread and returns the number of failures.
    static int failures(const std::function<Failure(int)>& take) {
        std::atomic<int> failed = 0;
        std::vector<std::thread> threads;
        threads.reserve(many);
        for (int item = 0; item < many; ++item) threads.emplace_back([&, item] { failed += take(item) ? 1 : 0; });
        for (std::thread& thread : threads) thread.join();
        return failed;
    }

    static bool withFewDescriptors(const std::function<bool()>& check) {
        return fakes::inChild([&] {
            const rlimit few{128, 128};
            return setrlimit(RLIMIT_NOFILE, &few) == 0 && check();
        });
    }

    const zoo::TempFolder temp{zoo::TempFolder::Medium::memory};
};

}  // namespace

TEST_F(ManyRemovals, allMoveToTheTrash) {
    const std::string home = temp / "home";
    zoo::makeFolder(home);
    EXPECT_TRUE(withFewDescriptors([&] {
        LinuxTrash trash(home);
        return failures([&](int item) { return trash.trash(ItemPath::from(pathOf(item)).value()).failure; }) == 0;
    }));
    EXPECT_TRUE(fs::is_empty(temp / "items"));
    EXPECT_EQ(fakes::namesIn(home + "/.local/share/Trash/files").size(), many);
}

TEST_F(ManyRemovals, allAreDeleted) {
    EXPECT_TRUE(withFewDescriptors([&] {
        LinuxFileManager files;
        return failures([&](int item) { return files.remove(ItemPath::from(pathOf(item)).value()); }) == 0;
    }));
    EXPECT_TRUE(fs::is_empty(temp / "items"));
}

}  // namespace zelk
