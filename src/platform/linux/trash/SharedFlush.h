// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <utility>

namespace zelk {

/// Flushes folders for many threads at once: one flush serves everybody who asked before it began, and whoever asks
/// while it runs waits for the next. Safe from any thread.
class SharedFlush {
public:
    using FlushFolder = std::function<void(int folder)>;

    /// `flushFolder` replaces the system's flush, which ignores errors: not every file system can flush a folder.
    explicit SharedFlush(FlushFolder flushFolder = flushBySystem) : flushFolder_(std::move(flushFolder)) {}

    /// Returns after a flush of the open `folder` that began during this call: what the caller created in it before
    /// keeps its name when the power fails, if the file system can promise that.
    void flush(int folder);

private:
    /// The flushes of one folder, numbered from 1.
    struct Turns {
        std::uint64_t begun = 0;
        std::uint64_t ended = 0;
    };

    static void flushBySystem(int folder);

    const FlushFolder flushFolder_;
    std::mutex mutex_;
    std::condition_variable ended_;
    std::map<std::pair<std::uint64_t, std::uint64_t>, Turns> turns_;  ///< by device and inode
};

}  // namespace zelk
