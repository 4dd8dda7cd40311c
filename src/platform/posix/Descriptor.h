// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace zelk {

/// Owns an open file descriptor; -1 is none.
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

    /// False if the system reports an error, such as a write that it had put off. Closed either way, never twice: after
    /// EINTR the number may already be another thread's.
    bool close() {
        const int fd = std::exchange(fd_, -1);
        return fd < 0 || ::close(fd) == 0 || errno == EINTR;
    }

private:
    int fd_ = -1;
};

/// Repeats a system call for as long as a signal interrupts it.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}

}  // namespace zelk
