// SPDX-License-Identifier: MIT
#include "zoo/Zoo.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>
#include <vector>

#ifdef __linux__
#include <sys/sysmacros.h>
#endif

namespace zelk::zoo {

namespace {

void check(bool good, const std::string& what) {
    if (!good) throw std::system_error(errno, std::generic_category(), what);
}

int createAt(int folder, const std::string& name) {
    const int fd = openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    check(fd >= 0, name);
    return fd;
}

int openFolder(const std::string& path) {
    makeFolder(path);
    const int fd = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    check(fd >= 0, path);
    return fd;
}

int createFile(const std::string& path) {
    makeFolder(std::filesystem::path(path).parent_path().string());
    return createAt(AT_FDCWD, path);
}

void makeLink(const std::string& target, const std::string& path) {
    check(symlink(target.c_str(), path.c_str()) == 0, path);
}

void makeHardLink(const std::string& file, const std::string& path) {
    check(link(file.c_str(), path.c_str()) == 0, path);
}

}  // namespace

void makeFolder(const std::string& path) {
    std::filesystem::create_directories(path);
}

void makeFile(const std::string& path, std::size_t bytes) {
    const int fd = createFile(path);
    const std::string content(bytes, 'z');
    check(write(fd, content.data(), bytes) == static_cast<ssize_t>(bytes), path);
    close(fd);
}

void allocateFile(const std::string& path, std::int64_t bytes) {
#ifdef __linux__
    const int fd = createFile(path);
    const int error = posix_fallocate(fd, 0, bytes);
    close(fd);
    errno = error;
    check(error == 0, path);
#else
    makeFile(path, static_cast<std::size_t>(bytes));
#endif
}

void makeHardLinks(const std::string& folder, const std::string& outside) {
    makeFolder(folder + "/b");
    makeFile(folder + "/a/first", 1 << 20);
    makeHardLink(folder + "/a/first", folder + "/a/second");
    makeHardLink(folder + "/a/first", folder + "/b/third");
    makeFile(outside + "/elsewhere", 70000);
    makeHardLink(outside + "/elsewhere", folder + "/b/here");
}

void makeLinks(const std::string& folder, const std::string& outside) {
    makeFolder(folder);
    makeFile(outside + "/folder/file", 5000);
    makeLink("itself", folder + "/itself");
    makeLink("pong", folder + "/ping");
    makeLink("ping", folder + "/pong");
    makeLink(".", folder + "/here");
    makeLink("..", folder + "/above");
    makeLink("nowhere", folder + "/dangling");
    makeLink("/", folder + "/top");
    makeLink(outside + "/folder", folder + "/outside");
    makeLink(outside + "/folder/file", folder + "/outside.zip");
    makeLink(std::string(200, 'x'), folder + "/long");  // too long for the inode: it takes a block
}

void makeNames(const std::string& folder) {
    std::vector<std::string> names{"line\nbreak",
                                   "tab\tand\rreturn",
                                   "\x1b[31mred",
                                   "...",
                                   "....",
                                   "..a",
                                   " ",
                                   "blank ",
                                   "-rf",
                                   "*",
                                   "?",
                                   "\\",
                                   "'\"`$(true)",
                                   "%s%n",
                                   ".png",
                                   "a.PNG",
                                   "name.",
                                   "archive.tar.gz",
                                   "\xC3\xA9\xF0\x9F\x90\x98.pdf"};
    names.push_back(std::string(255, 'n'));
#ifdef __linux__  // other file systems refuse names that are not UTF-8
    names.insert(names.end(), {"\xFF\xFE", "caf\xE9.txt", "\xC3", "\xED\xA0\x80", std::string(251, '\xA0') + ".mp4"});
#endif
    for (const std::string& name : names) {
        makeFile(folder + "/files/" + name, 1);
        makeFile(folder + "/folders/" + name + "/" + name, 1);
    }
}

void makeUnequalSizes(const std::string& folder) {
    const int hole = createFile(folder + "/hole.iso");
    check(ftruncate(hole, 1 << 30) == 0 && pwrite(hole, "x", 1, 1 << 29) == 1, "hole.iso");
    close(hole);
#ifdef __linux__
    const int reserved = createFile(folder + "/reserved");
    check(fallocate(reserved, FALLOC_FL_KEEP_SIZE, 0, 1 << 20) == 0 || errno == EOPNOTSUPP, "reserved");
    close(reserved);
#endif
    makeFile(folder + "/byte", 1);
    makeFile(folder + "/none");
}

void makeSpecialFiles(const std::string& folder) {
    makeFolder(folder);
    check(mkfifo((folder + "/pipe").c_str(), 0644) == 0, "pipe");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = folder + "/socket";
    check(path.size() < sizeof address.sun_path, path);
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    check(listener >= 0 && bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0, path);
    close(listener);
#ifdef __linux__
    if (geteuid() != 0) return;
    const auto device = [&](const char* name, mode_t kind, unsigned major, unsigned minor) {
        // Containers may forbid device files.
        const bool made = mknod((folder + name).c_str(), kind | 0600, makedev(major, minor)) == 0;
        check(made || errno == EPERM, name);
    };
    device("/null", S_IFCHR, 1, 3);
    device("/tape", S_IFCHR, 9, 0);
    device("/loop", S_IFBLK, 7, 200);
#endif
}

void makeUnreadable(const std::string& folder) {
    const std::vector<std::pair<const char*, mode_t>> kinds{{"/none", 0000}, {"/search", 0111}, {"/list", 0444}};
    for (const auto& [name, mode] : kinds) {
        const std::string one = folder + name;
        makeFile(one + "/below/file", 1);
        makeFile(one + "/file", 1);
        check(chmod(one.c_str(), mode) == 0, one);
    }
    const std::string empty = folder + "/empty";
    makeFolder(empty);
    check(chmod(empty.c_str(), 0444) == 0, empty);
}

void makeChain(const std::string& folder, std::size_t depth, std::size_t nameLength) {
    const std::string name(nameLength, 'd');
    int at = openFolder(folder);
    for (; depth > 0; --depth) {
        check(mkdirat(at, name.c_str(), 0755) == 0, "a folder of the chain");
        const int next = openat(at, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        check(next >= 0, "a folder of the chain");
        close(std::exchange(at, next));
        close(createAt(at, "file"));
    }
    close(at);
}

void makeWide(const std::string& folder, std::size_t files, std::size_t folders) {
    const int at = openFolder(folder);
    for (std::size_t file = 0; file < files; ++file) close(createAt(at, "file" + std::to_string(file) + ".txt"));
    for (std::size_t below = 0; below < folders; ++below)
        check(mkdirat(at, ("folder" + std::to_string(below)).c_str(), 0755) == 0, "a folder of the wide one");
    close(at);
}

void makeZoo(const std::string& folder, const std::string& outside, std::size_t chain) {
    makeFolder(outside);
    makeHardLinks(folder + "/hard", outside + "/hard");
    makeLinks(folder + "/links", outside + "/links");
    makeNames(folder + "/names");
    makeUnequalSizes(folder + "/sizes");
    makeSpecialFiles(folder + "/special");
    makeUnreadable(folder + "/unreadable");
    makeWide(folder + "/wide", 2700, 300);
    // Hard links and names again, below the depth that threads share.
    makeHardLinks(folder + "/1/2/3/4/5/6/7/8/hard", outside + "/deep");
    makeNames(folder + "/1/2/3/4/5/6/7/8/names");
    makeChain(folder + "/chain", chain, 200);
}

void makeRandomTree(const std::string& folder, std::uint64_t seed, std::size_t folders) {
    std::mt19937_64 random(seed);
    const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
    std::vector<std::string> paths{folder};
    std::vector<std::string> files;
    makeFolder(folder);
    while (paths.size() < folders) {
        paths.push_back(paths[below(paths.size())] + "/d" + std::to_string(paths.size()));
        makeFolder(paths.back());
        for (std::size_t count = below(12); count > 0; --count) {
            const std::string path = paths.back() + "/f" + std::to_string(count);
            switch (below(6)) {
                case 0:
                    makeLink(paths[below(paths.size())], path);
                    break;
                case 1:
                    if (!files.empty()) {
                        makeHardLink(files[below(files.size())], path);
                        break;
                    }
                    [[fallthrough]];
                case 2:
                    makeFile(path, below(200000));
                    break;
                default:
                    makeFile(path, below(3) == 0 ? 0 : below(9000));
                    break;
            }
            struct stat status;
            if (lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode)) files.push_back(path);
        }
    }
}

}  // namespace zelk::zoo
