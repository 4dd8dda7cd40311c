// SPDX-License-Identifier: MIT
#pragma once

#ifdef __linux__

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <future>
#include <iterator>
#include <system_error>
#include <thread>

namespace zelk::fakes {

/// Until the calling thread ends, the kernel applies `action` to the system call `number`: SECCOMP_RET_ERRNO with an
/// error makes it fail. Use it in a child process or on a separate thread. Returns -1 if the kernel refuses.
inline long filterCalls(int number, unsigned action, unsigned flags = 0) {
    sock_filter steps[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(number), 0, 1),
        BPF_STMT(BPF_RET | BPF_K, action),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{std::size(steps), steps};
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    return ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, flags, &program);
}

/// Until the calling thread ends, the system call `number` fails with `error` unless its argument `argument` (from 0)
/// has all `bits` set. Returns -1 if the kernel refuses. Little-endian machines only.
inline long requireBits(int number, unsigned argument, unsigned bits, unsigned error) {
    const auto place = static_cast<unsigned>(offsetof(seccomp_data, args) + argument * sizeof(std::uint64_t));
    const sock_filter steps[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(number), 0, 3),  // jumps to "allow"
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, place),
        BPF_STMT(BPF_ALU | BPF_AND | BPF_K, bits),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, bits, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
    };
    const sock_fprog program{std::size(steps), const_cast<sock_filter*>(steps)};
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    return ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &program);
}

/// Called before each gated call, on another thread, while the caller waits; `call` counts from 0. Returns 0 to let the
/// call pass, or the errno that it fails with.
using SystemCallRule = std::function<int(unsigned call)>;

/// The same, knowing the kernel's number of the calling thread.
using ThreadCallRule = std::function<int(unsigned call, pid_t thread)>;

/// Runs `body` on a thread whose system calls `number` are subject to `rule`: simulates failures of the disk and
/// actions of other programs at an exact moment. The threads that it starts are subject to it too, and must have ended
/// soon after.
inline void behindGate(int number, const ThreadCallRule& rule, const std::function<void()>& body) {
    std::promise<int> listenerMade;
    std::future<int> listener = listenerMade.get_future();
    std::thread gated([&] {
        const long fd = filterCalls(number, SECCOMP_RET_USER_NOTIF, SECCOMP_FILTER_FLAG_NEW_LISTENER);
        if (fd < 0) {
            listenerMade.set_exception(std::make_exception_ptr(std::system_error(errno, std::generic_category())));
            return;
        }
        listenerMade.set_value(static_cast<int>(fd));
        body();
    });
    listener.wait();
    try {
        const int fd = listener.get();
        pollfd waiting{fd, POLLIN, 0};
        // The listener hangs up when the thread has ended.
        for (unsigned call = 0; ::poll(&waiting, 1, -1) > 0 && (waiting.revents & POLLIN) != 0;) {
            seccomp_notif asked{};
            if (::ioctl(fd, SECCOMP_IOCTL_NOTIF_RECV, &asked) != 0) continue;
            seccomp_notif_resp answer{};
            answer.id = asked.id;
            answer.error = -rule(call++, static_cast<pid_t>(asked.pid));
            if (answer.error == 0) answer.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
            ::ioctl(fd, SECCOMP_IOCTL_NOTIF_SEND, &answer);
        }
        gated.join();
        ::close(fd);
    } catch (...) {
        gated.join();
        throw;
    }
}

inline void behindGate(int number, const SystemCallRule& rule, const std::function<void()>& body) {
    behindGate(number, ThreadCallRule([&rule](unsigned call, pid_t) { return rule(call); }), body);
}

}  // namespace zelk::fakes

#endif
