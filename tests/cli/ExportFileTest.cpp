// SPDX-License-Identifier: MIT
#include "cli/ExportFile.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk::cli {
namespace {

using fakes::fileContent;
using fakes::namesIn;
using fakes::writeFile;
using testing::ElementsAre;
using zoo::TempFolder;

const auto never = [] { return false; };

TEST(ExportFile, appearsWhole) {
    const TempFolder folder;
    writeFile(folder / "export", "old");
    {
        ExportFile file(folder / "export", never);
        EXPECT_EQ(file.write("new "), 0);
        EXPECT_EQ(file.write("content"), 0);
        EXPECT_EQ(fileContent(folder / "export"), "old");
        EXPECT_EQ(file.commit(), 0);
        EXPECT_EQ(fileContent(folder / "export"), "new content");
    }
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("export"));
}

TEST(ExportFile, leavesTheOldContentWithoutACommit) {
    const TempFolder folder;
    writeFile(folder / "export", "old");
    {
        ExportFile file(folder / "export", never);
        EXPECT_EQ(file.write("new"), 0);
    }
    EXPECT_EQ(fileContent(folder / "export"), "old");
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("export"));
}

TEST(ExportFile, writesNothingOnceItIsStopped) {
    const TempFolder folder;
    ExportFile file(folder / "export", [] { return true; });
    EXPECT_EQ(file.write("new"), ECANCELED);
}

TEST(ExportFile, goesToAPipeAsItComes) {
    const TempFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = fileContent(folder / "pipe"); });
    {
        ExportFile file(folder / "pipe", never);
        EXPECT_EQ(file.write("bytes"), 0);
        EXPECT_EQ(file.commit(), 0);
    }
    reader.join();
    EXPECT_EQ(read, "bytes");
    struct stat status {};
    ASSERT_EQ(::stat((folder / "pipe").c_str(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST(ExportFile, tellsThatADeviceIsFull) {
    ExportFile file("/dev/full", never);
    EXPECT_EQ(file.write("bytes"), ENOSPC);
}

TEST(ExportFile, knowsBeforehandWhereNothingCanBeWritten) {
    const TempFolder folder;
    writeFile(folder / "old", "old");
    EXPECT_EQ(ExportFile::whyNot(folder / "new"), 0);
    EXPECT_EQ(ExportFile::whyNot(folder / "old"), 0);
    EXPECT_EQ(ExportFile::whyNot("/dev/null"), 0);
    EXPECT_EQ(ExportFile::whyNot(folder / "missing/new"), ENOENT);
    EXPECT_EQ(ExportFile::whyNot(folder / "old/new"), ENOTDIR);
    EXPECT_EQ(ExportFile::whyNot(folder.path()), EISDIR);
    EXPECT_EQ(ExportFile::whyNot(folder / ""), EISDIR);
    EXPECT_THAT(namesIn(folder.path()), ElementsAre("old"));
    EXPECT_EQ(fileContent(folder / "old"), "old");
}

}  // namespace
}  // namespace zelk::cli
