// SPDX-License-Identifier: MIT
#include "cli/EndRequest.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <system_error>
#include <utility>

namespace zelk::cli {

namespace {

constexpr std::array endSignals{SIGINT, SIGTERM, SIGHUP};

// Globals, since signal handlers take no context.
std::atomic<int> writeEnd = -1;
std::atomic<int> received = 0;

void writeByte() {
    // A pipe that is full wakes the reader just as well.
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, "", 1);
}

void noteSignal(int number) {
    const int before = errno;
    int none = 0;
    received.compare_exchange_strong(none, number);
    writeByte();
    errno = before;
}

void handleBy(void (*handler)(int), int flags) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    sigemptyset(&action.sa_mask);
    for (const int number : endSignals) {
        struct sigaction before = {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) sigaction(number, &action, nullptr);
    }
}

}  // namespace

EndRequest::EndRequest() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) throw std::system_error(errno, std::generic_category(), "making a pipe");
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    readEnd_ = ends[0];
    writeEnd = ends[1];
    received = 0;
    handleBy(noteSignal, SA_RESTART | SA_RESETHAND);
}

EndRequest::~EndRequest() {
    handleBy(SIG_DFL, 0);
    ::close(readEnd_);
    ::close(writeEnd.exchange(-1));
}

int EndRequest::signal() const {
    return received;
}

void EndRequest::wake() {
    writeByte();
}

void EndRequest::wait() {
    pollfd readable{readEnd_, POLLIN, 0};
    while (::poll(&readable, 1, -1) < 0 && errno == EINTR && signal() == 0) {
    }
    std::array<char, 256> bytes;
    while (::read(readEnd_, bytes.data(), bytes.size()) > 0) {
    }
}

}  // namespace zelk::cli
