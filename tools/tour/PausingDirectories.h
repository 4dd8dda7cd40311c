// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>

#include "PauseGate.h"
#include "platform/DirectoryReader.h"

namespace zelk::tour {

/// The real file system, with readers that pause after a number of entries, for pictures of a running survey. Threads
/// may use it until the survey's threads have ended.
class PausingDirectories : public DirectoryService {
public:
    explicit PausingDirectories(DirectoryService& real) : real_(real) {}

    /// Resumes paused readers, and pauses again after `entries` more.
    void pauseAfter(std::int64_t entries) { gate_.pauseAfter(entries); }
    void resume() { gate_.resume(); }
    /// Adds `files` empty files to each folder, so that a survey of a small home takes longer.
    void crowd(std::size_t files) { crowd_ = files; }
    /// Whether a reader is paused.
    bool paused() { return gate_.paused(); }

    std::optional<RootStatus> status(const std::string& path) override { return real_.status(path); }
    std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) override { return real_.openRoot(path); }
    std::unique_ptr<DirectoryReader> makeReader() override;

private:
    class Reader;

    DirectoryService& real_;
    std::atomic<std::size_t> crowd_ = 0;
    PauseGate gate_;
};

}  // namespace zelk::tour
