// SPDX-License-Identifier: MIT
#include "reclaim/ContentHash.h"

#include <algorithm>

namespace zelk {

namespace {

/// The coarsest times that file systems store have steps of two seconds. Two changes within one step leave equal
/// stamps.
constexpr double coarsestStep = 2;

double secondsOf(const FileTime& time) {
    return static_cast<double>(time.seconds) + static_cast<double>(time.nanoseconds) / 1e9;
}

bool isSettled(const FileStamp& stamp, TimePoint opened) {
    return opened - std::max(secondsOf(stamp.modified), secondsOf(stamp.changed)) >= coarsestStep;
}

}  // namespace

ContentHasher::ContentHasher(Clock& clock) : clock_(clock), chunk_(new Chunk) {}

std::optional<ContentHash> ContentHasher::hash(FileReading& file, const std::function<bool(std::size_t)>& read) {
    ContentHash result;
    result.settled = isSettled(file.stamp(), clock_.now());
    std::int64_t length = 0;
    sha256_.start();
    while (const std::size_t got = file.read(chunk_->bytes, chunkBytes).value_or(0)) {
        sha256_.add(chunk_->bytes, got);
        length += static_cast<std::int64_t>(got);
        if (!read(got)) return std::nullopt;
    }
    std::optional<std::string> digest = sha256_.finish();
    if (!digest) return std::nullopt;
    result.digest = std::move(*digest);
    result.whole = length == file.stamp().size && file.stampNow() == file.stamp();
    return result;
}

}  // namespace zelk
