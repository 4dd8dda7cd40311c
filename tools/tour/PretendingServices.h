// SPDX-License-Identifier: MIT
// Services for a tour that presses every button but must not change anything: they only report success.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "PretendedApplications.h"
#include "platform/ChildProcess.h"
#include "platform/FileManager.h"
#include "platform/Time.h"
#include "platform/Trash.h"
#include "platform/Vitals.h"
#include "platform/Workspace.h"

namespace zelk::tour {

/// The contents of the Trash to report.
enum class TrashContents { real, none, locked };

/// What to report of the machine; what is absent is read.
struct PretendedVitals {
    std::optional<VolumeInfo> volume = std::nullopt;
    std::optional<MemoryStats> memory = std::nullopt;
    std::optional<PowerInfo> power = std::nullopt;
};

/// What a program answers to its arguments.
using PretendedPrograms =
    std::function<ChildOutcome(const std::string& executable, const std::vector<std::string>& arguments)>;

/// Controls the pretending services: they can wait, for a picture of work in progress, and can fail. Safe from any
/// thread.
class Pretence {
public:
    /// Makes operations wait, after the next `passing` ones.
    void hold(std::size_t passing = 0) {
        const std::lock_guard lock(mutex_);
        held_ = true;
        passing_ = passing;
    }
    void release() { set(held_, false); }
    /// Makes the measuring of folders wait, which only tasks do.
    void holdMeasuring(bool held) { set(measuringHeld_, held); }
    void waitToMeasure() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !measuringHeld_; });
    }
    void fail(bool failing) { set(failing_, failing); }
    void setTrash(TrashContents contents) { set(trash_, contents); }
    void setVitals(const PretendedVitals& vitals) { set(vitals_, vitals); }
    /// Sets the names of the running applications.
    void setRunning(std::vector<std::string> names) { set(running_, std::move(names)); }
    /// Sets what programs answer. Called on any thread.
    void setPrograms(PretendedPrograms programs) { set(programs_, std::move(programs)); }
    /// Sets the clock back by a number of days.
    void goBack(double days) { set(daysBack_, days); }

    /// Called by each operation: waits while held, and returns whether it succeeds.
    bool pass() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !held_ || passing_ > 0; });
        if (passing_ > 0) --passing_;
        return !failing_;
    }

    /// Has every program print this and succeed.
    void print(const std::string& output) {
        setPrograms([output](const std::string&, const std::vector<std::string>&) {
            return ChildOutcome{std::nullopt, 0, output};
        });
        set(output_, output);
    }

    PretendedApplications& applications() { return applications_; }
    TrashContents trash() { return get(trash_); }
    PretendedVitals vitals() { return get(vitals_); }
    PretendedPrograms programs() { return get(programs_); }
    std::vector<std::string> running() { return get(running_); }
    double daysBack() { return get(daysBack_); }
    /// What print() was last called with.
    std::string output() { return get(output_); }

private:
    template <class T>
    T get(const T& what) {
        const std::lock_guard lock(mutex_);
        return what;
    }
    template <class T>
    void set(T& what, std::type_identity_t<T> value) {
        const std::lock_guard lock(mutex_);
        what = std::move(value);
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    bool held_ = false;
    std::size_t passing_ = 0;
    bool measuringHeld_ = false;
    bool failing_ = false;
    TrashContents trash_ = TrashContents::real;
    PretendedVitals vitals_;
    std::vector<std::string> running_{"Code"};  // whose caches are in the sample homes
    PretendedPrograms programs_ = [](const std::string&, const std::vector<std::string>&) { return ChildOutcome(); };
    double daysBack_ = 0;
    std::string output_;
    PretendedApplications applications_;
};

class PretendingVitals : public Vitals {
public:
    PretendingVitals(Vitals& real, Pretence& pretence) : real_(real), pretence_(pretence) {}

    DeviceInfo device() override { return real_.device(); }
    MemoryStats memory() override { return pretence_.vitals().memory.value_or(real_.memory()); }
    std::optional<CPUTicks> ticks() override { return real_.ticks(); }
    PowerInfo power() override { return pretence_.vitals().power.value_or(real_.power()); }
    std::optional<VolumeInfo> volume(const std::string& path) override {
        const std::optional<VolumeInfo> volume = pretence_.vitals().volume;
        return volume ? volume : real_.volume(path);
    }
    double uptime() override { return real_.uptime(); }

private:
    Vitals& real_;
    Pretence& pretence_;
};

class PretendingTrash : public Trash {
public:
    PretendingTrash(Trash& real, Pretence& pretence) : real_(real), pretence_(pretence) {}

    std::string location() override { return real_.location(); }
    std::optional<std::vector<std::string>> list() override {
        pretence_.pass();
        switch (pretence_.trash()) {
            case TrashContents::none:
                return std::vector<std::string>();
            case TrashContents::locked:
                return std::nullopt;
            case TrashContents::real:
                break;
        }
        return real_.list();
    }
    TrashResult trash(const ItemPath& item) override {
        if (!pretence_.pass()) return {Failure("It is only a picture.")};
        return {std::nullopt, TrashedItem{item, {}, location() + "/" + std::string(item.name()), {}, {}}};
    }
    Failure restore(const TrashedItem&) override { return "It is only a picture."; }
    std::size_t empty() override {
        pretence_.pass();
        return 0;
    }

private:
    Trash& real_;
    Pretence& pretence_;
};

/// The real files, with those of the pretended applications. Removes nothing.
class PretendingFiles : public FileManager {
public:
    PretendingFiles(FileManager& real, Pretence& pretence)
        : real_(real), pretence_(pretence), applications_(pretence.applications()) {}

    bool exists(const std::string& path) override { return applications_.content(path) || real_.exists(path); }
    std::optional<FileProperties> properties(const std::string& path) override {
        if (applications_.content(path)) return FileProperties{.allocatedSize = 214'000'000};
        return real_.properties(path);
    }
    std::optional<std::vector<std::string>> list(const std::string& path) override {
        if (applications_.none()) return std::nullopt;
        std::optional<std::vector<std::string>> names = applications_.list(path);
        return names ? names : real_.list(path);
    }
    std::uint64_t allocatedSizeBelow(const std::string& path) override {
        applications_.waitForSizes();
        pretence_.waitToMeasure();
        return real_.allocatedSizeBelow(path);
    }
    std::uint64_t fullSizeBelow(const std::string& path) override { return real_.fullSizeBelow(path); }
    std::optional<std::string> realPath(const std::string& path) override { return real_.realPath(path); }
    std::optional<std::string> linkTarget(const std::string& path) override { return real_.linkTarget(path); }
    bool isLocked(const std::string& path) override { return real_.isLocked(path); }
    std::optional<std::string> read(const std::string& path) override { return real_.read(path); }
    std::optional<std::string> readSmall(const std::string& path, std::size_t most) override {
        std::optional<std::string> text = applications_.content(path);
        return text ? text : real_.readSmall(path, most);
    }
    std::optional<std::string> readStart(const std::string& path, std::size_t most) override {
        return real_.readStart(path, most);
    }
    bool replaceDurably(const std::string& path, std::string_view content) override {
        return real_.replaceDurably(path, content);
    }
    bool createDirectories(const std::string& path) override { return real_.createDirectories(path); }
    int tryOpen(const std::string& path) override { return real_.tryOpen(path); }
    Failure remove(const ItemPath&) override { return std::nullopt; }

private:
    FileManager& real_;
    Pretence& pretence_;
    PretendedApplications& applications_;
};

class PretendingClock : public Clock {
public:
    PretendingClock(Clock& real, Pretence& pretence) : real_(real), pretence_(pretence) {}

    TimePoint now() override { return real_.now() - pretence_.daysBack() * secondsPerDay; }
    double monotonic() override { return real_.monotonic(); }

private:
    Clock& real_;
    Pretence& pretence_;
};

/// Reports as running what the pretence says. Opens nothing.
class PretendingWorkspace : public Workspace {
public:
    PretendingWorkspace(Workspace& real, Pretence& pretence) : real_(real), pretence_(pretence) {}

    std::vector<std::string> runningApplications() override { return pretence_.running(); }
    void reveal(const std::vector<std::string>&) override {}
    void openURL(const std::string&) override {}
    std::optional<IconPixels> icon(const std::string& path, bool isDirectory, int side) override {
        return real_.icon(path, isDirectory, side);
    }
    std::optional<IconPixels> entryIcon(const std::string& nameOrPath, int side) override {
        return real_.entryIcon(nameOrPath, side);
    }

private:
    Workspace& real_;
    Pretence& pretence_;
};

class PretendingProcesses : public ChildProcess {
public:
    explicit PretendingProcesses(Pretence& pretence) : pretence_(pretence) {}

    using ChildProcess::run;
    ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments,
                     const ChildStreams&) override {
        const bool succeeds = pretence_.pass();
        ChildOutcome outcome = pretence_.programs()(executable, arguments);
        if (!succeeds) outcome.exitStatus = 1;
        return outcome;
    }

private:
    Pretence& pretence_;
};

}  // namespace zelk::tour
