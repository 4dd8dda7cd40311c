// SPDX-License-Identifier: MIT
#include "cli/Output.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace zelk::cli {

namespace {

constexpr std::size_t pieceBytes = 64 * 1024;
constexpr std::size_t mostAtOnce = std::size_t{1} << 30;  // macOS refuses 2 GiB in one call

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
    while (!bytes.empty()) {
        if (stopped()) return ECANCELED;
        const ssize_t written = ::write(descriptor, bytes.data(), std::min(bytes.size(), mostAtOnce));
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            pollfd room{descriptor, POLLOUT, 0};
            ::poll(&room, 1, -1);
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

}  // namespace zelk::cli
