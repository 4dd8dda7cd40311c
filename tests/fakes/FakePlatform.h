// SPDX-License-Identifier: MIT
// An in-memory platform: fakes of all services, which a test fills, controls and inspects.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "fakes/FakeDirectoryService.h"
#include "fakes/FakeFileContents.h"
#include "fakes/FakeFileManager.h"
#include "platform/Platform.h"
#include "platform/Preferences.h"
#include "platform/posix/ThreadCount.h"

namespace zelk::fakes {

/// A clock that only tests advance.
class FakeClock : public Clock {
public:
    TimePoint now() override {
        const std::lock_guard lock(mutex_);
        return now_;
    }
    double monotonic() override {
        const std::lock_guard lock(mutex_);
        return monotonic_;
    }
    void advance(double seconds) {
        const std::lock_guard lock(mutex_);
        now_ += seconds;
        monotonic_ += seconds;
    }

private:
    std::mutex mutex_;
    TimePoint now_ = 1'750'000'000;
    double monotonic_ = 1000;
};

/// Runs every task on a thread of its own, like the real service, and joins it: at once, or when a test says so.
class FakeTasks : public BackgroundTasks {
public:
    /// From now on tasks wait until released.
    void hold() {
        const std::lock_guard lock(mutex_);
        holding_ = true;
    }
    /// Runs the waiting tasks in order, and from now on each task at once.
    void release() {
        {
            const std::lock_guard lock(mutex_);
            holding_ = false;
        }
        while (runNext()) {
        }
    }
    /// Runs the oldest waiting task; false if none waits.
    bool runNext() { return runAt(0); }
    /// Runs the waiting task at `index`, counted from the oldest.
    bool runAt(std::size_t index) {
        std::function<void()> task;
        {
            const std::lock_guard lock(mutex_);
            if (index >= waiting_.size()) return false;
            const auto at = waiting_.begin() + static_cast<std::ptrdiff_t>(index);
            task = std::move(at->task);
            waiting_.erase(at);
        }
        runOnThread(std::move(task));
        return true;
    }
    /// The priorities of the waiting tasks, oldest first.
    std::vector<TaskPriority> waiting() const {
        const std::lock_guard lock(mutex_);
        std::vector<TaskPriority> priorities;
        for (const Waiting& one : waiting_) priorities.push_back(one.priority);
        return priorities;
    }

    /// From now on each task runs beside the test, until finish().
    void runBeside() {
        const std::lock_guard lock(mutex_);
        beside_ = true;
    }
    /// Waits for the tasks that run beside the test.
    void finish() {
        std::vector<std::thread> running;
        {
            const std::lock_guard lock(mutex_);
            beside_ = false;
            running.swap(running_);
        }
        for (std::thread& thread : running) thread.join();
    }

    /// Called on the submitting thread after a task was run at once. Set it before anything runs.
    std::function<void()> afterOne = [] {};

    void run(TaskPriority priority, std::function<void()> task) override {
        {
            const std::lock_guard lock(mutex_);
            if (holding_) {
                waiting_.push_back({priority, std::move(task)});
                return;
            }
            if (beside_) {
                running_.emplace_back(std::move(task));
                return;
            }
        }
        runOnThread(std::move(task));
        afterOne();
    }
    void runApart(TaskPriority priority, std::function<void()> task) override { run(priority, std::move(task)); }

private:
    struct Waiting {
        TaskPriority priority;
        std::function<void()> task;
    };

    static void runOnThread(std::function<void()> task) { std::thread(std::move(task)).join(); }

    mutable std::mutex mutex_;
    bool holding_ = false;
    bool beside_ = false;
    std::deque<Waiting> waiting_;
    std::vector<std::thread> running_;
};

/// Fill the fields before anything runs.
class FakeVitals : public Vitals {
public:
    DeviceInfo deviceInfo{"Test machine", "Test chip", 8, 16'000'000'000, "TestOS 1.0", "Test1,1"};
    MemoryStats memoryStats{16'000'000'000, 8'000'000'000, 8'000'000'000, 2'000'000'000, 0};
    std::optional<CPUTicks> cpuTicks = CPUTicks{};
    PowerInfo powerInfo;
    double uptimeSeconds = 3600;

    /// Sets the volume of `path`; absent makes it unreadable, like all paths that are not set.
    void setVolume(const std::string& path, std::optional<VolumeInfo> info) {
        const std::lock_guard lock(mutex_);
        volumes_[path] = info;
    }
    /// The paths whose volume was read, in order.
    std::vector<std::string> volumeReads() const {
        const std::lock_guard lock(mutex_);
        return volumeReads_;
    }

    DeviceInfo device() override { return deviceInfo; }
    MemoryStats memory() override { return memoryStats; }
    std::optional<CPUTicks> ticks() override { return cpuTicks; }
    PowerInfo power() override { return powerInfo; }
    std::optional<VolumeInfo> volume(const std::string& path) override {
        const std::lock_guard lock(mutex_);
        volumeReads_.push_back(path);
        const auto found = volumes_.find(path);
        return found == volumes_.end() ? std::nullopt : found->second;
    }
    double uptime() override { return uptimeSeconds; }

private:
    mutable std::mutex mutex_;
    std::map<std::string, std::optional<VolumeInfo>> volumes_;
    std::vector<std::string> volumeReads_;
};

/// Fill the fields before anything runs.
class FakeLocations : public Locations {
public:
    std::string homePath = "/home/me";
    std::optional<std::string> applicationSupportPath = "/home/me/support";
    std::optional<XdgHomes> xdg;
    TrashPlaces thrownAway;
    std::vector<BackgroundItemFolder> itemFolders;
    std::vector<std::string> programs;
    std::vector<std::string> sharedData;
    std::vector<std::string> locales;
    bool sandboxed = false;  ///< and what others call "/usr/…" and "/etc/…" is below "/run/host"

    std::string home() override { return homePath; }
    std::optional<std::string> applicationSupport() override { return applicationSupportPath; }
    std::optional<XdgHomes> xdgHomes() override { return xdg; }
    TrashPlaces trashPlaces() override { return thrownAway; }
    std::vector<BackgroundItemFolder> backgroundItemFolders() override { return itemFolders; }
    std::vector<std::string> programFolders() override { return programs; }
    std::vector<std::string> sharedDataFolders() override { return sharedData; }
    std::vector<std::string> entryLocales() override { return locales; }
    bool isSandboxed() override { return sandboxed; }
    std::string pathInSandbox(const std::string& path) override {
        const bool isSystems = sandboxed && (path.starts_with("/usr/") || path.starts_with("/etc/"));
        return isSystems ? "/run/host" + path : path;
    }
};

/// A Trash in "/home/me/.Trash" with entries in the file manager.
class FakeTrash : public Trash {
public:
    explicit FakeTrash(FakeFileManager& files) : files_(files) { files_.addFolder(path); }

    const std::string path = "/home/me/.Trash";

    void put(const std::string& name, std::uint64_t bytes) { files_.addFile(path + "/" + name, {}, bytes); }
    /// Whether it is readable.
    void setAccessible(bool accessible) {
        const std::lock_guard lock(mutex_);
        accessible_ = accessible;
    }

    std::string location() override { return path; }
    std::optional<std::vector<std::string>> list() override {
        {
            const std::lock_guard lock(mutex_);
            if (!accessible_) return std::nullopt;
        }
        std::optional<std::vector<std::string>> entries = files_.list(path);
        if (entries)
            for (std::string& entry : *entries) entry = path + "/" + entry;
        return entries;
    }

    /// Fails if the file manager's `failing` returns true for the operation "trash". A name that is taken gets a
    /// number.
    TrashResult trash(const ItemPath& item) override {
        if (files_.failing && files_.failing({"trash", item.text()}))
            return {item.text() + " would not go to the Trash"};
        if (!files_.properties(item.text())) return {item.text() + " does not exist"};
        const std::lock_guard lock(mutex_);
        std::string place = path + "/" + std::string(item.name());
        for (int number = 2; files_.identity(place); ++number)
            place = path + "/" + std::string(item.name()) + "." + std::to_string(number);
        files_.move(item.text(), place);
        trashed_.push_back(item.text());
        return {std::nullopt, TrashedItem{item,
                                          files_.identity(item.parent()).value_or(FileIdentity()),
                                          place,
                                          files_.identity(place).value_or(FileIdentity()),
                                          {}}};
    }
    /// Fails if `failing` returns true for the operation "restore", and where the real Trash would.
    Failure restore(const TrashedItem& item) override {
        const std::string& origin = item.origin.text();
        if (files_.failing && files_.failing({"restore", origin})) return origin + " would not come back";
        const std::lock_guard lock(mutex_);
        const std::optional<FileIdentity> parent = files_.identity(item.origin.parent());
        if (!parent) return origin + ": its folder is missing";
        if (*parent != item.parent) return origin + ": its folder is another one";
        const std::optional<FileIdentity> there = files_.identity(item.path);
        if (!there) return origin + " is not in the Trash";
        if (*there != item.identity) return origin + ": the Trash holds something else";
        if (files_.identity(origin)) return origin + " is taken";
        files_.move(item.path, origin);
        restored_.push_back(origin);
        return std::nullopt;
    }
    std::size_t empty() override {
        std::size_t removed = 0;
        for (const std::string& entry : list().value_or(std::vector<std::string>()))
            if (!files_.remove(*ItemPath::from(entry))) ++removed;
        return removed;
    }
    /// The original paths of the trashed items, in order.
    std::vector<std::string> trashed() const {
        const std::lock_guard lock(mutex_);
        return trashed_;
    }
    /// The paths of the restored items, in order.
    std::vector<std::string> restored() const {
        const std::lock_guard lock(mutex_);
        return restored_;
    }

private:
    FakeFileManager& files_;
    mutable std::mutex mutex_;
    bool accessible_ = true;
    std::vector<std::string> trashed_;
    std::vector<std::string> restored_;
};

/// Every program succeeds without output until a test sets the outcome.
class FakeProcesses : public ChildProcess {
public:
    struct Call {
        std::string executable;
        std::vector<std::string> arguments;
        ChildStreams streams = {};

        bool operator==(const Call&) const = default;
    };

    /// Set it before other threads start.
    std::function<ChildOutcome(const Call&)> outcome = [](const Call&) { return ChildOutcome{}; };

    std::vector<Call> calls() const {
        const std::lock_guard lock(mutex_);
        return calls_;
    }

    using ChildProcess::run;
    ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments,
                     const ChildStreams& streams) override {
        const Call call{executable, arguments, streams};
        {
            const std::lock_guard lock(mutex_);
            calls_.push_back(call);
        }
        return outcome(call);
    }

private:
    mutable std::mutex mutex_;
    std::vector<Call> calls_;
};

/// Main thread.
class FakeWorkspace : public Workspace {
public:
    std::vector<std::string> running;
    std::vector<std::string> runningIds;
    bool runningKnown = true;
    int runningReads = 0;
    /// Called by every read of the running applications, before it.
    std::function<void()> beforeRunningRead;
    std::vector<std::vector<std::string>> revealed;
    std::vector<std::string> opened;
    /// The desktop's icons by path; other paths have none.
    std::map<std::string, IconPixels> icons;
    /// The paths whose icon was requested, in order.
    std::vector<std::string> iconReads;

    std::vector<std::string> runningApplications() override {
        ++runningReads;
        if (beforeRunningRead) beforeRunningRead();
        return running;
    }
    std::vector<std::string> runningApplicationIds() override { return runningIds; }
    bool knowsRunningApplications() override { return runningKnown; }
    void reveal(const std::vector<std::string>& paths) override { revealed.push_back(paths); }
    void openURL(const std::string& url) override { opened.push_back(url); }
    std::optional<IconPixels> icon(const std::string& path, bool, int) override {
        iconReads.push_back(path);
        const auto found = icons.find(path);
        return found == icons.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<IconPixels> entryIcon(const std::string& nameOrPath, int side) override {
        return icon(nameOrPath, true, side);
    }
};

/// In memory.
class FakePreferences : public Preferences {
public:
    std::map<std::string, bool> flags;

    bool flag(const std::string& key) override {
        const auto found = flags.find(key);
        return found != flags.end() && found->second;
    }
    void setFlag(const std::string& key, bool value) override { flags[key] = value; }
};

/// All services together. The destructor waits for the threads of all scans: a held walk blocks it.
class FakePlatform {
public:
    FakeClock clock;
    FakeDirectoryService directories;
    FakeFileManager files;
    FakeFileContents contents{files};
    FakeTrash trash{files};
    FakeVitals vitals;
    FakeLocations locations;
    FakeTasks tasks;
    FakeProcesses processes;
    FakeWorkspace workspace;

    FakePlatform() = default;
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;
    ~FakePlatform() { waitForThreads(); }

    /// Set it before platform() is called.
    SystemKind system = SystemKind::macOS;

    Platform platform() {
        return {clock, directories, files, contents, trash, vitals, locations, tasks, processes, workspace, system};
    }

    /// Waits until every thread of every scan has ended.
    static void waitForThreads() {
        while (!drainThreads(1)) {
        }
    }
};

}  // namespace zelk::fakes
