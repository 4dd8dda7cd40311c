// SPDX-License-Identifier: MIT
#include "platform/posix/FileFacts.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>

#include "fakes/TestFiles.h"
#include "platform/posix/Descriptor.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using testing::Optional;
using zoo::TempFolder;

/// A process that locks a file for as long as it lives.
class Locker {
public:
    Locker(const std::string& path, short type) {
        int ready[2];
        EXPECT_EQ(::pipe(ready), 0);
        process_ = ::fork();
        if (process_ == 0) {
            const int file = ::open(path.c_str(), O_RDWR);
            struct flock lock {};
            lock.l_type = type;
            lock.l_whence = SEEK_SET;
            const bool locked = file >= 0 && ::fcntl(file, F_SETLK, &lock) == 0;
            if (::write(ready[1], locked ? "y" : "n", 1) == 1)
                for (;;) ::pause();
            ::_exit(1);
        }
        ::close(ready[1]);
        char answer = 'n';
        EXPECT_EQ(::read(ready[0], &answer, 1), 1);
        EXPECT_EQ(answer, 'y');
        ::close(ready[0]);
    }
    Locker(const Locker&) = delete;
    Locker& operator=(const Locker&) = delete;
    ~Locker() { end(); }

    void end() {
        if (process_ <= 0) return;
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
        process_ = 0;
    }

private:
    pid_t process_ = 0;
};

TEST(FileFacts, readsTextOfLinksWhetherOrNotTheyLeadAnywhere) {
    const TempFolder folder;
    const std::string longText = std::string(3'000, 'x');
    ASSERT_EQ(::symlink("my-host-4711", (folder / "dangling").c_str()), 0);
    ASSERT_EQ(::symlink(longText.c_str(), (folder / "long").c_str()), 0);
    ASSERT_EQ(::symlink(std::string(256, 'y').c_str(), (folder / "as long as the buffer").c_str()), 0);
    fakes::writeFile(folder / "file", "x");
    EXPECT_THAT(textOfLink(folder / "dangling"), Optional(std::string("my-host-4711")));
    EXPECT_THAT(textOfLink(folder / "long"), Optional(longText));
    EXPECT_THAT(textOfLink(folder / "as long as the buffer"), Optional(std::string(256, 'y')));
    for (const char* name : {"file", ".", "missing"}) EXPECT_EQ(textOfLink(folder / name), std::nullopt) << name;
}

TEST(FileFacts, findsLocksOfOtherProcessesUntilTheyDie) {
    const TempFolder folder;
    const std::string path = folder / ".parentlock";
    EXPECT_FALSE(isLockedByAnother(path)) << "it does not exist";
    fakes::writeFile(path, "");
    EXPECT_FALSE(isLockedByAnother(path)) << "it only exists";
    for (const short type : {short{F_WRLCK}, short{F_RDLCK}}) {
        Locker locker(path, type);
        EXPECT_TRUE(isLockedByAnother(path));
        ASSERT_EQ(::symlink(".parentlock", (folder / "link").c_str()), 0);
        EXPECT_TRUE(isLockedByAnother(folder / "link"));
        locker.end();
        EXPECT_FALSE(isLockedByAnother(path));
        ::unlink((folder / "link").c_str());
    }
}

TEST(FileFacts, lookingAtALockTakesNone) {
    const TempFolder folder;
    fakes::writeFile(folder / "file", "");
    EXPECT_FALSE(isLockedByAnother(folder / "file"));
    const Locker locker(folder / "file", F_WRLCK);  // succeeds
    EXPECT_TRUE(isLockedByAnother(folder / "file"));
}

TEST(FileFacts, locksOfAnotherKindAreNone) {
    const TempFolder folder;
    fakes::writeFile(folder / "file", "");
    const Descriptor file(::open((folder / "file").c_str(), O_RDWR));
    ASSERT_EQ(::flock(file.get(), LOCK_EX), 0);
    EXPECT_FALSE(isLockedByAnother(folder / "file"));
}

TEST(FileFacts, neverBlocksOnAPipe) {
    const TempFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(isLockedByAnother(folder / "pipe"));
    EXPECT_FALSE(isLockedByAnother(folder.path()));
}

}  // namespace
}  // namespace zelk
