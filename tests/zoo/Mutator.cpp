// SPDX-License-Identifier: MIT
#include "zoo/Mutator.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <new>
#include <random>
#include <stdexcept>
#include <thread>

#include "zoo/RemoveTree.h"

#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace zelk::zoo {

struct Mutator::Shared {
    std::atomic<std::uint64_t> created{0};
    std::atomic<std::uint64_t> renamed{0};
    std::atomic<std::uint64_t> deleted{0};
    std::atomic<std::uint64_t> swapped{0};
    std::atomic<std::uint64_t> movedAway{0};
};

namespace {

constexpr int openFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

int openOrThrow(const std::string& path) {
    const int fd = open(path.c_str(), openFlags);
    if (fd < 0) throw std::runtime_error("the mutator needs " + path);
    return fd;
}

/// Works on entries named d0 and d1, down to depths at which a walker no longer keeps all parents open. Walks down one
/// component at a time, follows no links, and acts only on names in open folders.
template <class Shared>
class Vandal {
public:
    Vandal(int root, std::string canary, int limbo, std::uint64_t seed, Shared& done)
        : root_(root), canary_(std::move(canary)), limbo_(limbo), random_(seed), done_(done) {}

    void act() {
        const int folder = somewhere();
        const std::string name = someName();
        switch (random_() % 10) {
            case 0:
            case 1:
            case 2:
                build(folder);
                break;
            case 3:
                moveAbout(folder, name);
                break;
            case 4:
                remove(folder, name);
                break;
            case 5:
            case 6:
                swapAtomically(folder, name);
                break;
            case 7:
                replaceByLink(folder, name);
                break;
            default:
                moveAwayOrBack(folder, name);
                break;
        }
        close(folder);
        // Keep the tree small over a long run.
        if (++acts_ % 500 == 0) removeBelow(root_);
    }

private:
    std::string someName() { return "d" + std::to_string(random_() % 2); }

    /// Walks randomly from the root as far as there are folders.
    int somewhere() {
        int at = dup(root_);
        for (std::uint64_t depth = random_() % 48; depth > 0; --depth) {
            const int next = openat(at, someName().c_str(), openFlags);
            if (next < 0) break;
            close(at);
            at = next;
        }
        return at;
    }

    void build(int folder) {
        int at = dup(folder);
        for (std::uint64_t depth = 1 + random_() % 30; depth > 0; --depth) {
            const std::string name = someName();
            if (mkdirat(at, name.c_str(), 0755) == 0) ++done_.created;
            const int next = openat(at, name.c_str(), openFlags);
            if (next < 0) break;
            close(at);
            at = next;
            const int file = openat(at, "file.txt", O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0644);
            if (file < 0) continue;
            if (write(file, "x", 1) == 1) ++done_.created;
            close(file);
        }
        close(at);
    }

    void moveAbout(int folder, const std::string& name) {
        const int target = somewhere();
        if (renameat(folder, name.c_str(), target, someName().c_str()) == 0) ++done_.renamed;
        close(target);
    }

    void remove(int folder, const std::string& name) {
        if (unlinkat(folder, "file.txt", 0) == 0) ++done_.deleted;
        if (unlinkat(folder, name.c_str(), 0) == 0 || removeTreeAt(folder, name)) ++done_.deleted;
    }

    bool removeTreeAt(int folder, const std::string& name) {
        return fchdir(folder) == 0 && removeTree(name);  // refuses a link
    }

    void removeBelow(int folder) {
        if (fchdir(folder) == 0) removeTree(".", false);
    }

    /// Atomically exchanges the folder with a link: whoever knew the name as a folder meets the link.
    void swapAtomically(int folder, const std::string& name) {
        if (symlinkat(canary_.c_str(), folder, "swap") != 0) return;
#ifdef __linux__
        if (renameat2(folder, "swap", folder, name.c_str(), RENAME_EXCHANGE) == 0) {
            ++done_.swapped;
            if (renameat2(folder, "swap", folder, name.c_str(), RENAME_EXCHANGE) == 0) ++done_.swapped;
        }
#else
        const std::string away = nextAway();
        if (renameat(folder, name.c_str(), limbo_, away.c_str()) == 0 &&
            renameat(folder, "swap", folder, name.c_str()) == 0) {
            ++done_.swapped;
            unlinkat(folder, name.c_str(), 0);
            renameat(limbo_, away.c_str(), folder, name.c_str());
        }
#endif
        if (unlinkat(folder, "swap", 0) != 0) removeTreeAt(folder, "swap");
    }

    void replaceByLink(int folder, const std::string& name) {
        const std::string away = nextAway();
        if (renameat(folder, name.c_str(), limbo_, away.c_str()) == 0) ++done_.movedAway;
        if (symlinkat(canary_.c_str(), folder, name.c_str()) == 0) ++done_.swapped;
        if (unlinkat(limbo_, away.c_str(), 0) != 0) removeTreeAt(limbo_, away);
    }

    /// Moves a folder away, or back later: a walker inside it then has a foreign parent.
    void moveAwayOrBack(int folder, const std::string& name) {
        if (gone_.empty()) {
            const std::string away = nextAway();
            if (renameat(folder, name.c_str(), limbo_, away.c_str()) != 0) return;
            gone_ = away;
            ++done_.movedAway;
        } else {
            if (renameat(limbo_, gone_.c_str(), folder, name.c_str()) == 0) {
                ++done_.renamed;
            } else if (unlinkat(limbo_, gone_.c_str(), 0) != 0) {
                removeTreeAt(limbo_, gone_);
            }
            gone_.clear();
        }
    }

    std::string nextAway() {
        return "away" + std::to_string(++away_);
    }

    const int root_;
    const std::string canary_;
    const int limbo_;
    std::mt19937_64 random_;
    Shared& done_;
    std::uint64_t acts_ = 0;
    std::uint64_t away_ = 0;
    std::string gone_;  ///< parked folders, by their names in limbo
};

}  // namespace

Mutator::Mutator(const std::string& root, const std::string& canary, const std::string& limbo, std::uint64_t seed) {
    const int rootFd = openOrThrow(root);
    const int limboFd = openOrThrow(limbo);
    void* const memory = mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::runtime_error("no memory to share with the mutator");
    shared_ = new (memory) Shared;
    [[maybe_unused]] const pid_t parent = getpid();
    child_ = fork();
    if (child_ == 0) {
#ifdef __linux__
        prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
        Vandal vandal(rootFd, canary, limboFd, seed, *shared_);
        while (getppid() == parent) vandal.act();
        _exit(0);
    }
    close(rootFd);
    close(limboFd);
    if (child_ < 0) throw std::runtime_error("no process for the mutator");
}

Mutator::~Mutator() {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
    munmap(shared_, sizeof(Shared));
}

Mutator::Done Mutator::done() const {
    return {shared_->created, shared_->renamed, shared_->deleted, shared_->swapped, shared_->movedAway};
}

bool Mutator::waitForMore(std::uint64_t count) const {
    const std::uint64_t enough = done().all() + count;
    while (done().all() < enough) {
        siginfo_t info{};
        if (waitid(P_PID, static_cast<id_t>(child_), &info, WEXITED | WNOHANG | WNOWAIT) != 0 || info.si_pid != 0)
            return false;
        std::this_thread::yield();
    }
    return true;
}

}  // namespace zelk::zoo
