// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "fakes/FakeDirectoryService.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/ThreadCount.h"
#include "scan/ScanEngine.h"

namespace zelk {

/// A finished scan, split into its updates.
struct ScanResult {
    std::vector<update::Progress> progress;
    std::optional<update::Blocked> blocked;
    ScanInsights insights;
    NodeRef top;
    ScanStats stats;
    std::string order;  ///< one letter per update: p, b, i, f

    explicit ScanResult(std::vector<ScanUpdate> updates) {
        for (ScanUpdate& update : updates) {
            if (auto* p = std::get_if<update::Progress>(&update)) progress.push_back(*p), order += 'p';
            if (auto* b = std::get_if<update::Blocked>(&update)) blocked = *b, order += 'b';
            if (auto* i = std::get_if<update::Insights>(&update)) insights = i->insights, order += 'i';
            if (auto* f = std::get_if<update::Finished>(&update)) top = f->root, stats = f->stats, order += 'f';
        }
    }
};

#ifdef __linux__
/// How many workers are asleep, be it for want of work or because a test holds them.
inline int sleepingWorkers() {
    int count = 0;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream file(task.path() / "stat");
        std::string line;
        std::getline(file, line);
        count += line.find("(zelk.scan.worke) S") != std::string::npos ? 1 : 0;
    }
    return count;
}

inline void waitForSleepingWorkers(int count) {
    while (sleepingWorkers() < count) std::this_thread::yield();
}
#endif

/// Walks a fake file system with a given number of threads.
class ScanFixture : public testing::Test {
protected:
    ScanFixture() { workers(4); }
    ~ScanFixture() override {
        EXPECT_TRUE(drainThreads(60)) << "a thread of the scan is still running";
        unsetenv("ZELK_WORKERS");
    }

    static void workers(int count) { setenv("ZELK_WORKERS", std::to_string(count).c_str(), 1); }

    ScanResult scan(std::vector<std::string> roots) {
        const auto queue = std::make_shared<UpdateQueue>();
        ScanEngine(disk, clock, trash).runHere(queue, std::move(roots));
        auto batch = queue->takeAll();
        EXPECT_TRUE(batch.ended);
        return ScanResult(std::move(batch.updates));
    }

    /// Scans "/r" on threads of its own. Once `meanwhile` returns, those that the file system holds go on to the end.
    ScanResult scanWhile(const std::function<void()>& meanwhile) {
        const auto queue = std::make_shared<UpdateQueue>();
        ScanEngine(disk, clock, trash).start(queue, {"/r"});
        meanwhile();
        disk.release();
        EXPECT_TRUE(drainThreads(60));
        return ScanResult(queue->takeAll().updates);
    }

#ifdef __linux__
    /// Scans "/r" with a worker for each of `places`, which must be held. One worker reads "/r" once the others have
    /// fallen asleep for want of work; the scan goes on to its end once one waits at each of the places.
    ScanResult scanWaking(const std::vector<std::string>& places) {
        const int count = static_cast<int>(places.size());
        workers(count);
        disk.hold("/r");
        return scanWhile([&] {
            disk.waitUntilHeld("/r");
            waitForSleepingWorkers(count);
            disk.release("/r");
            for (const std::string& place : places) disk.waitUntilHeld(place);
        });
    }
#endif

    /// The node at a path below the only root; null if it is not in the tree.
    static FSNode* at(const ScanResult& result, const std::string& path) {
        std::vector<FSNode*> open{result.top.get()};
        while (!open.empty()) {
            FSNode* node = open.back();
            open.pop_back();
            if (node->fullPath() == path) return node;
            for (FSNode& child : node->children()) open.push_back(&child);
        }
        return nullptr;
    }

    fakes::FakeDirectoryService disk;
    PosixClock clock;
    TrashPlaces trash;
};

}  // namespace zelk
