// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>

#include "platform/DirectoryReader.h"

namespace zelk::tour {

/// The real file system, with readers that pause after a number of entries, for pictures of a running survey. Threads
/// may use it until the survey's threads have ended.
class PausingDirectories : public DirectoryService {
public:
    explicit PausingDirectories(DirectoryService& real) : real_(real) {}

    /// Resumes paused readers, and pauses again after `entries` more.
    void pauseAfter(std::int64_t entries);
    void resume();
    /// Adds `files` empty files to each folder, so that a survey of a small home takes longer.
    void crowd(std::size_t files) { crowd_ = files; }
    /// Whether a reader is paused.
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
