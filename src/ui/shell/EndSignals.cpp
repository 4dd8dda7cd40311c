// SPDX-License-Identifier: MIT
#include "ui/shell/EndSignals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace zelk {

namespace {

constexpr std::array endSignals{SIGTERM, SIGINT, SIGHUP};

// A global, since signal handlers take no context.
int writeEnd = -1;

void noteSignal(int) {
    const int before = errno;
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, "", 1);
    errno = before;
}

void handleBy(void (*handler)(int), int flags) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    sigemptyset(&action.sa_mask);
    for (const int number : endSignals) sigaction(number, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> asked) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) return;  // signals keep their default effect
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    readEnd_ = ends[0];
    writeEnd = ends[1];
    notifier_ = std::make_unique<QSocketNotifier>(readEnd_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [readEnd = readEnd_, asked = std::move(asked)] {
                         char byte = 0;
                         if (::read(readEnd, &byte, 1) == 1) asked();
                     });
    handleBy(noteSignal, SA_RESTART | SA_RESETHAND);
}

EndSignals::~EndSignals() {
    if (readEnd_ < 0) return;
    handleBy(SIG_DFL, 0);
    notifier_.reset();
    ::close(readEnd_);
    ::close(std::exchange(writeEnd, -1));
}

}  // namespace zelk
