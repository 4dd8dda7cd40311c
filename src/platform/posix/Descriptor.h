// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace zelk {

/// Owns a file descriptor; -1 means none.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }
    ~Descriptor() { close(); }

    explicit operator bool() const { return fd_ >= 0; }
    int get() const { return fd_; }
    int release() { return std::exchange(fd_, -1); }

    /// False if close reports an error, such as a failed delayed write. The descriptor is closed either way and never
    /// twice: after EINTR its number may already belong to another thread.
    bool close() {
        const int fd = std::exchange(fd_, -1);
        return fd < 0 || ::close(fd) == 0 || errno == EINTR;
    }

private:
    int fd_ = -1;
};

/// Repeats a system call while it is interrupted by signals.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}

}  // namespace zelk
