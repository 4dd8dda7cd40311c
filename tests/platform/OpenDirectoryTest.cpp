// SPDX-License-Identifier: MIT
#include "platform/posix/OpenDirectory.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "platform/posix/Descriptor.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

using fakes::Identity;
using fakes::identityOf;
using fakes::openDescriptors;

Identity identityAt(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? Identity{status.st_dev, status.st_ino} : Identity{};
}

std::string repeated(std::size_t count, const std::string& text) {
    std::string all;
    for (; count > 0; --count) all += text;
    return all;
}

/// Returns the identity of an opened directory and closes it; {0, 0}, with errno unchanged, if it could not be opened.
Identity root(const std::string& path) {
    const Descriptor fd(openRootDirectory(path));
    return fd ? identityOf(fd.get()) : Identity{};
}

Identity beneath(int rootFd, std::string_view below) {
    const Descriptor fd(openDirectoryBeneath(rootFd, below));
    return fd ? identityOf(fd.get()) : Identity{};
}

Identity subdirectory(int parentFd, std::string_view name) {
    const Descriptor fd(openSubdirectory(parentFd, name));
    return fd ? identityOf(fd.get()) : Identity{};
}

const Identity nobody{};

class OpenDirectory : public testing::Test {
protected:
    OpenDirectory() : temp(zoo::TempFolder::Medium::memory) {
        zoo::makeFile(temp / "root/a/b/file");
        zoo::makeFile(temp / "outside/b/file");
        top = Descriptor(::open((temp / "root").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }
    ~OpenDirectory() override {
        top.close();
        EXPECT_EQ(openDescriptors(), before);
    }

    /// Creates `levels` nested folders with 255-byte names below `folder`; returns the path of the lowest, relative to
    /// `folder`.
    std::string makeLong(const std::string& folder, std::size_t levels) {
        zoo::makeChain(folder, levels, 255);
        std::string path = repeated(levels, '/' + std::string(255, 'd'));
        return path.substr(1);
    }

    /// The identity of the lowest folder of a chain, found step by step.
    Identity lowest(std::size_t levels) {
        Descriptor at(::openat(top.get(), "long", O_RDONLY | O_DIRECTORY));
        for (; levels > 0; --levels)
            at = Descriptor(::openat(at.get(), std::string(255, 'd').c_str(), O_RDONLY | O_DIRECTORY));
        return identityOf(at.get());
    }

    const std::ptrdiff_t before = openDescriptors();
    const zoo::TempFolder temp;
    Descriptor top;
};

TEST_F(OpenDirectory, rootFollowsLinks) {
    fs::create_directory_symlink(temp / "root", temp / "link");
    fs::create_directory_symlink("link", temp / "linkToLink");
    fs::create_directory_symlink("../../outside", temp / "root/a/link");
    EXPECT_EQ(root(temp / "link"), identityAt(temp / "root"));
    EXPECT_EQ(root(temp / "linkToLink/a/b"), identityAt(temp / "root/a/b"));
    EXPECT_EQ(root(temp / "root/a/link/b"), identityAt(temp / "outside/b"));
    EXPECT_EQ(root("/"), identityAt("/"));
}

TEST_F(OpenDirectory, rootThatIsNotADirectoryFailsWithoutBlocking) {
    ASSERT_EQ(::mkfifo((temp / "pipe").c_str(), 0644), 0);
    fs::create_symlink(temp / "pipe", temp / "pipeLink");
    fs::create_symlink("loop", temp / "loop");
    const std::vector<std::pair<std::string, int>> failures{
        {temp / "root/a/b/file", ENOTDIR},
        {temp / "root/a/b/file/x", ENOTDIR},
        {temp / "pipe", ENOTDIR},
        {temp / "pipeLink", ENOTDIR},
        {"/dev/null", ENOTDIR},
        {temp / "nowhere", ENOENT},
        {"", ENOENT},
        {temp / "loop", ELOOP},
        {temp / std::string(256, 'x'), ENAMETOOLONG},
    };
    for (const auto& [path, error] : failures) {
        errno = 0;
        EXPECT_EQ(openRootDirectory(path), -1) << path;
        EXPECT_EQ(errno, error) << path;
    }
}

TEST_F(OpenDirectory, rootAcceptsRepeatedSlashes) {
    EXPECT_EQ(root(repeated(10000, "/")), identityAt("/"));
    EXPECT_EQ(root(temp.path() + repeated(10000, "/") + "root" + repeated(10000, "/")), identityAt(temp / "root"));
    EXPECT_EQ(root(repeated(10000, "/") + (temp / "root/a").substr(1)), identityAt(temp / "root/a"));
    EXPECT_EQ(root(temp / "root/a" + repeated(5000, "/.")), identityAt(temp / "root/a"));
    EXPECT_EQ(root(temp / "root/a" + repeated(5000, "/../a")), identityAt(temp / "root/a"));
}

// Lengthens the first name byte by byte, so that every byte of the others comes to lie at the limit of one system call.
TEST_F(OpenDirectory, opensPathLongerThanPathMax) {
    constexpr std::size_t levels = 34;
    const std::string below = makeLong(temp / "root/long", levels);
    const Identity wanted = lowest(levels);
    const std::string afterFirst = '/' + below;
    std::string wide = afterFirst;
    for (std::size_t at = 0; (at = wide.find('/', at)) != std::string::npos; at += 3) wide.insert(at, "//");
    std::string name = "long";
    for (std::size_t length = 1; length <= 255; ++length) {
        const std::string next(length, 'n');
        ASSERT_EQ(::renameat(top.get(), name.c_str(), top.get(), next.c_str()), 0);
        name = next;
        ASSERT_EQ(beneath(top.get(), name + afterFirst), wanted) << length;
        ASSERT_EQ(root(temp / "root/" + name + afterFirst), wanted) << length;
        ASSERT_EQ(root(temp / "root/" + name + wide + "///"), wanted) << length;
    }
}

TEST_F(OpenDirectory, opensPathsAroundPathMax) {
    // "x/x/x/...": the number of names and of bytes grows in small steps.
    zoo::makeChain(temp / "root/long", 2100, 1);
    Descriptor at(::openat(top.get(), "long", O_RDONLY | O_DIRECTORY));
    std::string below = "long";
    for (std::size_t level = 1; level <= 2100; ++level) {
        at = Descriptor(::openat(at.get(), "d", O_RDONLY | O_DIRECTORY));
        below += "/d";
        if (below.size() < 4000 && level % 100 != 0) continue;
        const Identity wanted = identityOf(at.get());
        ASSERT_EQ(beneath(top.get(), below), wanted) << below.size();
        ASSERT_EQ(root(temp / "root/" + below), wanted) << below.size();
    }
}

TEST_F(OpenDirectory, followsLinksInLongRootsButNeverBeneath) {
    constexpr std::size_t levels = 40;
    const std::string below = "long/" + makeLong(temp / "root/long", levels);
    const Identity wanted = lowest(levels);
    ASSERT_EQ(beneath(top.get(), below), wanted);
    Descriptor at(::open((temp / "root/long").c_str(), O_RDONLY | O_DIRECTORY));
    const std::string name(255, 'd');
    for (std::size_t level = 0; level < levels; ++level) {
        // A link to the original folder: the link itself is the only reason to refuse.
        ASSERT_EQ(::renameat(at.get(), name.c_str(), at.get(), "moved"), 0);
        ASSERT_EQ(::symlinkat("moved", at.get(), name.c_str()), 0);
        EXPECT_EQ(beneath(top.get(), below), nobody) << level;
        EXPECT_EQ(root(temp / "root/" + below), wanted) << level;
        ASSERT_EQ(::unlinkat(at.get(), name.c_str(), 0), 0);
        ASSERT_EQ(::renameat(at.get(), "moved", at.get(), name.c_str()), 0);
        at = Descriptor(::openat(at.get(), name.c_str(), O_RDONLY | O_DIRECTORY));
    }
}

TEST_F(OpenDirectory, failureFarBelowLeaksNoDescriptor) {
    const std::string below = "long/" + makeLong(temp / "root/long", 40);
    const std::ptrdiff_t open = openDescriptors();
    for (const char* const last : {"/nowhere", "/file", "/file/nowhere"}) {
        EXPECT_EQ(openDirectoryBeneath(top.get(), below + last), -1);
        EXPECT_EQ(openRootDirectory(temp / "root/" + below + last), -1);
    }
    EXPECT_EQ(openDirectoryBeneath(top.get(), below + '/' + std::string(256, 'd')), -1);
    EXPECT_EQ(openDirectoryBeneath(top.get(), below + '/' + std::string(10000, 'd')), -1);
    EXPECT_EQ(openRootDirectory(temp / "root/" + below + '/' + std::string(10000, 'd')), -1);
    EXPECT_EQ(openDescriptors(), open);
}

TEST_F(OpenDirectory, emptyPathReopensTheRoot) {
    const Descriptor fd(openDirectoryBeneath(top.get(), ""));
    ASSERT_TRUE(fd);
    EXPECT_NE(fd.get(), top.get());
    EXPECT_EQ(identityOf(fd.get()), identityOf(top.get()));
}

TEST_F(OpenDirectory, refusesLinksBeneath) {
    fs::create_directory_symlink(temp / "outside", temp / "root/absolute");
    fs::create_directory_symlink("../outside", temp / "root/outside");
    fs::create_directory_symlink("a", temp / "root/inside");
    fs::create_directory_symlink(".", temp / "root/a/here");
    for (const char* const below : {"absolute", "absolute/b", "outside", "outside/b", "inside", "inside/b", "a/here",
                                    "a/here/b", "a/here/here/b"}) {
        EXPECT_EQ(beneath(top.get(), below), nobody) << below;
    }
    for (const char* const name : {"absolute", "outside", "inside"})
        EXPECT_EQ(subdirectory(top.get(), name), nobody) << name;
}

TEST_F(OpenDirectory, refusesDotDotBeneath) {
    const std::vector<std::string> ways{
        "..", "../outside", "a/../../outside", "a/..", "/", "/tmp", "a/" + repeated(3000, "../") + "outside"};
    for (const std::string& below : ways) {
        const Identity found = beneath(top.get(), below);
        EXPECT_TRUE(found == nobody || found == identityAt(temp / "root")) << below;
    }
}

TEST_F(OpenDirectory, fileOrPipeBeneathFailsWithoutBlocking) {
    ASSERT_EQ(::mkfifo((temp / "root/pipe").c_str(), 0644), 0);
    EXPECT_EQ(openDirectoryBeneath(top.get(), "pipe"), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(openSubdirectory(top.get(), "pipe"), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(openDirectoryBeneath(top.get(), "a/b/file"), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(openSubdirectory(top.get(), "nowhere"), -1);
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(OpenDirectory, acceptsUnterminatedName) {
    const std::string_view text = "a/b/nowhere";
    EXPECT_EQ(beneath(top.get(), text.substr(0, 3)), identityAt(temp / "root/a/b"));
    EXPECT_EQ(beneath(top.get(), text.substr(0, 1)), identityAt(temp / "root/a"));
    EXPECT_EQ(subdirectory(top.get(), text.substr(0, 1)), identityAt(temp / "root/a"));
}

TEST_F(OpenDirectory, acceptsNamesOfAnyBytesAndLength) {
    for (const std::string& name : {std::string(255, '\xA0'), std::string("\xFF\n\\ "), std::string("..."),
                                    std::string("..a"), std::string(".hidden"), std::string("-rf")}) {
        zoo::makeFolder(temp / "root/" + name + "/below");
        const Identity wanted = identityAt(temp / "root/" + name);
        EXPECT_EQ(subdirectory(top.get(), name), wanted) << name;
        EXPECT_EQ(beneath(top.get(), name), wanted) << name;
        EXPECT_EQ(beneath(top.get(), name + "/below"), identityAt(temp / "root/" + name + "/below")) << name;
    }
}

TEST_F(OpenDirectory, unreadableFolderFails) {
    ASSERT_EQ(::chmod((temp / "root/a/b").c_str(), 0111), 0);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        const auto refused = [](int fd) { return fd == -1 && errno == EACCES; };
        return refused(openDirectoryBeneath(top.get(), "a/b")) && refused(openRootDirectory(temp / "root/a/b")) &&
               refused(openSubdirectory(top.get(), "a") == -1 ? 0 : openDirectoryBeneath(top.get(), "a/b"));
    }));
}

TEST_F(OpenDirectory, childProcessesInheritNoDescriptor) {
    for (const int fd : {openRootDirectory(temp / "root"), openDirectoryBeneath(top.get(), ""),
                         openDirectoryBeneath(top.get(), "a/b"), openSubdirectory(top.get(), "a")}) {
        const Descriptor owned(fd);
        EXPECT_EQ(::fcntl(fd, F_GETFD), FD_CLOEXEC);
    }
}

#ifdef __linux__

// Magic links in /proc look like links to folders, but the kernel lets them lead anywhere.
TEST_F(OpenDirectory, refusesMagicLinks) {
    const Descriptor self(::open("/proc/self", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (const std::string& below : {std::string("root"), std::string("cwd"), std::string("root/tmp"),
                                     "fd/" + std::to_string(top.get()), "fd/" + std::to_string(top.get()) + "/a"}) {
        EXPECT_EQ(beneath(self.get(), below), nobody) << below;
    }
    EXPECT_EQ(subdirectory(self.get(), "root"), nobody);
}

#endif

}  // namespace
}  // namespace zelk
