// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>

#include "platform/DirectoryReader.h"

namespace zelk::tour {

/// The real file system, with a gate: the readers of a survey stand still once they have delivered a number of entries,
/// so that there is time for a picture of a survey under way. Threads may use it until the survey's threads have ended.
class PausingDirectories : public DirectoryService {
public:
    explicit PausingDirectories(DirectoryService& real) : real_(real) {}

    /// From now on the readers stop when `entries` more have been delivered; those that stand at the gate go on.
    void pauseAfter(std::int64_t entries);
    void resume();
    /// From now on each folder has `files` empty ones more: a small home becomes one whose survey takes its time.
    void crowd(std::size_t files) { crowd_ = files; }
    /// Whether a reader stands at the gate.
    bool paused();

    std::optional<RootStatus> status(const std::string& path) override { return real_.status(path); }
    std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) override { return real_.openRoot(path); }
    std::unique_ptr<DirectoryReader> makeReader() override;

private:
    class Reader;
    void pass(std::int64_t entries);

    DirectoryService& real_;
    std::atomic<std::size_t> crowd_ = 0;
    std::mutex mutex_;
    std::condition_variable resumed_;
    bool armed_ = false;
    std::int64_t left_ = 0;
    int waiting_ = 0;
};

}  // namespace zelk::tour
