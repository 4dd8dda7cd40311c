// SPDX-License-Identifier: MIT
#include "cli/Output.h"

#include <limits.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace zelk::cli {

namespace {

constexpr std::size_t pieceBytes = 64 * 1024;
constexpr std::size_t mostAtOnce = std::size_t{1} << 30;  // macOS refuses 2 GiB in one call
constexpr std::size_t pipeBytes = PIPE_BUF;               // a pipe that has room has room for these
constexpr int lookAfterMilliseconds = 100;

}  // namespace

Output::Output(Take take) : take_(std::move(take)) {
    held_.reserve(pieceBytes);
}

void Output::write(std::string_view bytes) {
    if (held_.size() + bytes.size() > pieceBytes) {
        handOn(held_);
        held_.clear();
    }
    if (bytes.size() >= pieceBytes)
        handOn(bytes);
    else
        held_ += bytes;
}

int Output::finish() {
    handOn(held_);
    held_.clear();
    return error_;
}

void Output::handOn(std::string_view bytes) {
    if (error_ == 0 && !bytes.empty()) error_ = take_(bytes);
}

int writeAll(int descriptor, std::string_view bytes, const std::function<bool()>& stopped) {
    struct stat status {};
    const bool isFile = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    while (!bytes.empty()) {
        if (stopped()) return ECANCELED;
        // A call that waits for room would not hear of a signal that came the moment before it.
        if (!isFile) {
            pollfd room{descriptor, POLLOUT, 0};
            const int ready = ::poll(&room, 1, lookAfterMilliseconds);
            if (ready == 0 || (ready < 0 && errno == EINTR)) continue;
        }
        const ssize_t written =
            ::write(descriptor, bytes.data(), std::min(bytes.size(), isFile ? mostAtOnce : pipeBytes));
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR && errno != EAGAIN)
            return errno;
    }
    return 0;
}

}  // namespace zelk::cli
