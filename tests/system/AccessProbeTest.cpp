// SPDX-License-Identifier: MIT
#include "system/AccessProbe.h"

#include <gmock/gmock.h>

#include <cerrno>

#include "fakes/FakeFileManager.h"

#ifdef __linux__
#include <sys/stat.h>

#include "fakes/InChild.h"
#include "platform/linux/files/LinuxFileManager.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"
#endif

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AccessProbe : public testing::Test {
protected:
    bool probe() { return hasFullDiskAccess(files, "/Users/me"); }
    void addRecord(const std::string& path, int error) {
        files.addFile(path);
        files.openErrors[path] = error;
    }
    void addMail(bool readable) {
        files.addFolder(mail);
        files.failing = [=, this](const auto& call) {
            return call.operation == "list" && call.path == mail && !readable;
        };
    }

    const std::string own = "/Users/me/Library/Application Support/com.apple.TCC/TCC.db";
    const std::string shared = "/Library/Application Support/com.apple.TCC/TCC.db";
    const std::string mail = "/Users/me/Library/Mail";
    fakes::FakeFileManager files;
};

TEST_F(AccessProbe, readableUserRecordGrantsAccessWithoutFurtherCalls) {
    addRecord(own, 0);
    addRecord(shared, EACCES);
    addMail(false);
    files.forgetCalls();
    EXPECT_TRUE(probe());
    EXPECT_THAT(files.pathsOf("tryOpen"), ElementsAre(own));
    EXPECT_THAT(files.pathsOf("exists"), ElementsAre(own));
    EXPECT_THAT(files.pathsOf("list"), IsEmpty());
}

TEST_F(AccessProbe, refusedUserRecordDeniesAccess) {
    addRecord(shared, 0);
    for (const int refusal : {EPERM, EACCES}) {
        addRecord(own, refusal);
        EXPECT_FALSE(probe()) << refusal;
    }
    EXPECT_THAT(files.pathsOf("tryOpen"), ElementsAre(own, own));
}

TEST_F(AccessProbe, systemRecordDecidesWithoutUserRecord) {
    addRecord(shared, EACCES);
    EXPECT_FALSE(probe());
    addRecord(shared, EPERM);
    EXPECT_FALSE(probe());
    addMail(false);
    addRecord(shared, 0);
    EXPECT_TRUE(probe());
}

TEST_F(AccessProbe, otherErrorOnUserRecordFallsBackToSystemRecord) {
    addRecord(own, EMFILE);
    addRecord(shared, EACCES);
    EXPECT_FALSE(probe());
    addRecord(shared, 0);
    EXPECT_TRUE(probe());
}

TEST_F(AccessProbe, otherErrorsOnBothRecordsFallBackToMail) {
    addRecord(own, EIO);
    addRecord(shared, EMFILE);
    addMail(false);
    EXPECT_FALSE(probe());
    addMail(true);
    EXPECT_TRUE(probe());
}

TEST_F(AccessProbe, unlistableMailDeniesAccess) {
    addMail(false);
    EXPECT_FALSE(probe());
}

TEST_F(AccessProbe, listableMailGrantsAccessEvenIfEmpty) {
    addMail(true);
    EXPECT_TRUE(probe());
}

TEST_F(AccessProbe, grantsAccessWhereNothingIsProtected) {
    EXPECT_TRUE(probe());
    EXPECT_THAT(files.pathsOf("tryOpen"), IsEmpty());
    EXPECT_THAT(files.pathsOf("exists"), ElementsAre(own, shared, mail));
}

TEST_F(AccessProbe, rootAsHomeUsesSystemRecord) {
    addRecord(shared, 0);
    files.forgetCalls();
    EXPECT_TRUE(hasFullDiskAccess(files, "/"));
    EXPECT_THAT(files.pathsOf("exists"), ElementsAre(shared));
}

#ifdef __linux__
TEST(AccessProbeOnLinux, readsRealPermissions) {
    const zoo::TempFolder home;
    LinuxFileManager files;
    EXPECT_TRUE(hasFullDiskAccess(files, home.path()));
    const std::string record = home / "Library/Application Support/com.apple.TCC/TCC.db";
    zoo::makeFile(record, 10);
    for (const char* folder :
         {"", "/Library", "/Library/Application Support", "/Library/Application Support/com.apple.TCC"})
        ASSERT_EQ(::chmod((home.path() + folder).c_str(), 0755), 0);
    ASSERT_EQ(::chmod(record.c_str(), 0), 0);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] { return !hasFullDiskAccess(files, home.path()); }));
    ASSERT_EQ(::chmod(record.c_str(), 0644), 0);
    EXPECT_TRUE(fakes::asOrdinaryUser([&] { return hasFullDiskAccess(files, home.path()); }));
}
#endif

}  // namespace
}  // namespace zelk
