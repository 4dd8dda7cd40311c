// SPDX-License-Identifier: MIT
#include "reclaim/ReadAhead.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <utility>

#include "platform/Thread.h"

namespace zelk {

namespace {

constexpr std::size_t stackBytes = 256 * 1024;

}  // namespace

struct ReadAhead::Shared {
    std::mutex mutex;
    std::condition_variable changed;
    std::int64_t reader = 0;  ///< where the reader is
    bool stopped = false;
    bool ended = false;

    /// Waits until `place` is near enough to the reader. Returns where the reader is; absent if there is no use in
    /// going on.
    std::optional<std::int64_t> waitFor(std::int64_t place) {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return stopped || place < reader + distance; });
        if (stopped) return std::nullopt;
        return reader;
    }

    void run(FileContents& contents, const std::vector<File>& files) {
        std::int64_t begin = 0;
        for (const File& file : files) {
            const std::int64_t end = begin + file.size;
            std::optional<std::int64_t> at = waitFor(begin);
            if (!at) return;
            if (const std::unique_ptr<FileReading> reading = *at < end ? contents.open(file.item) : nullptr) {
                for (std::int64_t place = begin; place < end; place += requestBytes) {
                    at = waitFor(place);
                    if (!at) return;
                    // What the reader has passed is read already.
                    if (place + requestBytes > *at)
                        reading->prefetch(place - begin, std::min(requestBytes, end - place));
                }
            }
            begin = end;
        }
    }
};

ReadAhead::ReadAhead(FileContents& contents, std::vector<File> files) : shared_(std::make_shared<Shared>()) {
    auto work = [shared = shared_, &contents, files = std::move(files)] {
        shared->run(contents, files);
        const std::lock_guard lock(shared->mutex);
        shared->ended = true;
        shared->changed.notify_all();
    };
    try {
        startThread("zelk.duplicates.ahead", stackBytes, std::move(work));
    } catch (const std::system_error&) {
        shared_->ended = true;
    }
}

ReadAhead::~ReadAhead() {
    std::unique_lock lock(shared_->mutex);
    shared_->stopped = true;
    shared_->changed.notify_all();
    shared_->changed.wait(lock, [this] { return shared_->ended; });
}

void ReadAhead::follow(std::int64_t bytes) {
    const std::lock_guard lock(shared_->mutex);
    shared_->reader = bytes;
    shared_->changed.notify_all();
}

}  // namespace zelk
