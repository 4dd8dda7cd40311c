// SPDX-License-Identifier: MIT
// floor ROOT...: makes the system calls of a survey and nothing else, as its lower bound.
//
// Uses the same number of threads, the same shared stack down to the same depth, the same sharing of a large folder,
// and per folder the same open, getdents64, statx and close with the same buffer, mask and flags as
// LinuxDirectoryReader and its ladder. Keeps no tree, no tallies, and no names except those of folders still to be
// entered. Prints {"seconds":…,"entries":…}.
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "scan/ScanEngine.h"

namespace {

constexpr std::size_t readBytes = 64 * 1024;
constexpr int parallelDepth = 6;             // folders above this depth are shared by the threads
constexpr std::size_t partEntries = 128;     // of a large folder, taken at once by one thread
constexpr std::size_t sharedEntries = 1024;  // of a folder that is large
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
constexpr int statFlags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
constexpr unsigned statMask = STATX_TYPE | STATX_NLINK | STATX_INO | STATX_BLOCKS | STATX_MTIME;

struct KernelEntry {
    std::uint64_t inode;
    std::int64_t offset;
    std::uint16_t length;
    std::uint8_t type;
};
constexpr std::size_t nameOffset = offsetof(KernelEntry, type) + 1;
constexpr std::size_t minimumRecord = 24;

struct Device {
    std::uint32_t major;
    std::uint32_t minor;
    bool operator==(const Device&) const = default;
};

struct Root {
    int fd;
    Device device;
};

struct Work {
    const Root* root;
    std::string below;
    int depth;
};

/// What was found in a folder.
struct Found {
    std::uint64_t entries = 0;
    std::vector<char> folders;  // the names of those to be entered, each with a NUL
};

/// Calls statx for each entry in `records` of the folder `fd`.
void query(int fd, const Device& device, std::string_view records, Found& found) {
    while (!records.empty()) {
        KernelEntry record;
        std::memcpy(&record, records.data(), sizeof record);
        const char* const name = records.data() + nameOffset;
        records.remove_prefix(record.length);
        if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'))) continue;
        struct statx status;
        if (statx(fd, name, statFlags, statMask, &status) != 0) continue;
        ++found.entries;
        if (S_ISDIR(status.stx_mode) && Device{status.stx_dev_major, status.stx_dev_minor} == device)
            found.folders.insert(found.folders.end(), name, name + std::strlen(name) + 1);
    }
}

/// The parts of `records`, each of as many entries.
std::vector<std::string_view> partsOf(std::string_view records) {
    std::vector<std::string_view> parts;
    std::size_t count = 0;
    for (std::size_t at = 0; at < records.size(); ++count) {
        std::uint16_t length;
        std::memcpy(&length, records.data() + at + offsetof(KernelEntry, length), sizeof length);
        if (count % partEntries == 0) parts.push_back(records.substr(at, 0));
        at += length;
        parts.back() = {parts.back().data(), static_cast<std::size_t>(records.data() + at - parts.back().data())};
    }
    return parts;
}

/// A large folder whose parts are queried by several threads.
struct Offer {
    int fd;
    const Device& device;
    const std::vector<std::string_view>& parts;
    Found& found;             // by the helpers; guarded by the stack's lock, as is the next
    std::size_t helpers = 0;  // threads at it besides its owner
    std::atomic<std::size_t> next{0};

    void join(Found& its) {
        for (std::size_t part; (part = next.fetch_add(1, std::memory_order_relaxed)) < parts.size();)
            query(fd, device, parts[part], its);
    }
};

/// The folders waiting for a thread: last in, first out.
class Stack {
public:
    void push(std::vector<Work>& items) {
        std::size_t wake;
        {
            const std::lock_guard lock(mutex_);
            for (Work& item : items) work_.push_back(std::move(item));
            outstanding_ += items.size();
            wake = std::min(waiting_, items.size());
        }
        items.clear();
        for (; wake > 0; --wake) changed_.notify_one();
    }

    /// Takes a folder; false when the walk is over. `finishedOne`: the previous folder is finished.
    bool take(Work& work, bool finishedOne) {
        std::unique_lock lock(mutex_);
        if (finishedOne && --outstanding_ == 0) changed_.notify_all();
        while (work_.empty() && outstanding_ > 0) {
            if (!offers_.empty()) {
                help(lock);
                continue;
            }
            ++waiting_;
            changed_.wait(lock);
            --waiting_;
        }
        if (work_.empty()) return false;
        work = std::move(work_.back());
        work_.pop_back();
        return true;
    }

    /// Queries a large folder with the threads that wait.
    void share(int fd, const Device& device, const std::vector<std::string_view>& parts, Found& found) {
        Found others;
        Offer offer{fd, device, parts, others};
        std::size_t wake;
        {
            const std::lock_guard lock(mutex_);
            offers_.push_back(&offer);
            wake = std::min(waiting_, parts.size() - 1);
        }
        for (; wake > 0; --wake) changed_.notify_one();
        offer.join(found);
        std::unique_lock lock(mutex_);
        std::erase(offers_, &offer);
        helped_.wait(lock, [&] { return offer.helpers == 0; });
        add(others, found);
    }

private:
    static void add(const Found& some, Found& all) {
        all.entries += some.entries;
        all.folders.insert(all.folders.end(), some.folders.begin(), some.folders.end());
    }

    void help(std::unique_lock<std::mutex>& lock) {
        Offer& offer = *offers_.back();
        ++offer.helpers;
        lock.unlock();
        Found found;
        offer.join(found);
        lock.lock();
        std::erase(offers_, &offer);
        add(found, offer.found);
        if (--offer.helpers == 0) helped_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::condition_variable helped_;
    std::vector<Offer*> offers_;
    std::vector<Work> work_;
    std::size_t outstanding_ = 0;
    std::size_t waiting_ = 0;
};

class Reader {
public:
    Reader(Stack& stack, bool sharesWork)
        : stack_(stack), buffer_(static_cast<char*>(std::malloc(readBytes))), sharesWork_(sharesWork) {}
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    ~Reader() { std::free(buffer_); }

    std::uint64_t entries() const { return found_.entries; }

    void visit(const Work& work) {
        const int fd = openBelow(*work.root, work.below);
        if (fd < 0) return;
        const std::size_t firstFolder = folders_.size();
        readFolder(fd, work.root->device);
        const std::size_t end = folders_.size();
        for (std::size_t at = firstFolder; at < end;) {
            const std::string_view name(folders_.data() + at);
            at += name.size() + 1;
            if (work.depth + 1 < parallelDepth) {
                std::string below = work.below.empty() ? std::string() : work.below + '/';
                children_.push_back({work.root, below.append(name), work.depth + 1});
            } else {
                walkDown(fd, std::string(name), work.root->device);
            }
        }
        folders_.resize(firstFolder);
        if (!children_.empty()) stack_.push(children_);
        close(fd);
    }

private:
    struct Level {
        int fd;
        std::size_t first;  ///< index of its first folder in folders_
        std::size_t next;
    };

    static int openBelow(const Root& root, const std::string& below) {
        if (below.empty()) return openat(root.fd, ".", folderFlags);
        open_how how{};
        how.flags = folderFlags | O_NOFOLLOW;
        how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS;
        return static_cast<int>(syscall(SYS_openat2, root.fd, below.c_str(), &how, sizeof how));
    }

    /// Walks everything below `name` on this thread.
    void walkDown(int parent, const std::string& name, const Device& device) {
        enter(parent, name.c_str(), device);
        while (!levels_.empty()) {
            Level& level = levels_.back();
            if (level.next == folders_.size()) {
                close(level.fd);
                folders_.resize(level.first);
                levels_.pop_back();
                continue;
            }
            const char* const child = folders_.data() + level.next;
            level.next += std::strlen(child) + 1;
            enter(level.fd, child, device);
        }
    }

    void enter(int parent, const char* name, const Device& device) {
        const int fd = openat(parent, name, folderFlags | O_NOFOLLOW);
        if (fd < 0) return;
        const std::size_t first = folders_.size();
        readFolder(fd, device);
        levels_.push_back({fd, first, first});
    }

    /// Lists the whole folder, then calls statx for each entry; appends the names of its folders to folders_.
    void readFolder(int fd, const Device& device) {
        std::size_t used = 0;
        while (true) {
            if (capacity_ < used + readBytes) {
                capacity_ = used * 2 + readBytes;
                buffer_ = static_cast<char*>(std::realloc(buffer_, capacity_));
            }
            const long got = syscall(SYS_getdents64, fd, buffer_ + used, capacity_ - used);
            if (got < 0) return;
            if (got == 0) break;
            used += static_cast<std::size_t>(got);
        }
        const std::string_view records(buffer_, used);
        if (used >= sharedEntries * minimumRecord && sharesWork_) {
            const std::vector<std::string_view> parts = partsOf(records);
            if (parts.size() >= sharedEntries / partEntries) return stack_.share(fd, device, parts, found_);
        }
        query(fd, device, records, found_);
    }

    Stack& stack_;
    char* buffer_;
    std::size_t capacity_ = readBytes;
    const bool sharesWork_;
    Found found_;
    std::vector<char>& folders_ = found_.folders;
    std::vector<Level> levels_;
    std::vector<Work> children_;
};

/// Folders stay open until everything below is done, so a deep tree needs many descriptors.
void raiseDescriptorLimit() {
    rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return;
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
}

}  // namespace

int main(int count, char** words) {
    if (count < 2) {
        std::fprintf(stderr, "usage: floor ROOT...\n");
        return 2;
    }
    raiseDescriptorLimit();
    const auto start = std::chrono::steady_clock::now();
    Stack stack;
    std::vector<Root> roots;
    std::vector<Work> seeds;
    roots.reserve(static_cast<std::size_t>(count));
    for (int root = 1; root < count; ++root) {
        const int fd = open(words[root], folderFlags);
        struct statx status;
        if (fd < 0 || statx(fd, "", AT_EMPTY_PATH, STATX_TYPE, &status) != 0) continue;
        roots.push_back({fd, {status.stx_dev_major, status.stx_dev_minor}});
        seeds.push_back({&roots.back(), {}, 0});
    }

    stack.push(seeds);

    std::atomic<std::uint64_t> entries{0};
    std::vector<std::thread> threads;
    const std::int64_t workers = zelk::ScanEngine::resolveWorkerCount();
    for (std::int64_t worker = roots.empty() ? 0 : workers; worker > 0; --worker) {
        threads.emplace_back([&] {
            Reader reader(stack, workers > 1);
            Work work;
            for (bool finishedOne = false; stack.take(work, finishedOne); finishedOne = true) reader.visit(work);
            entries += reader.entries();
        });
    }
    for (std::thread& thread : threads) thread.join();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::printf("{\"seconds\":%.6f,\"entries\":%llu}\n", seconds.count(),
                static_cast<unsigned long long>(entries.load()));
    return 0;
}
