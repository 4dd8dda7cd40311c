// SPDX-License-Identifier: MIT
#include "platform/ToolPath.h"

#include <gtest/gtest.h>

#include <string>

#include "fakes/FakeFileManager.h"

namespace zelk {
namespace {

constexpr const char* ofTheFinder = "/usr/bin:/bin:/usr/sbin:/sbin";
const std::string added = ":/opt/homebrew/bin:/Users/ada/.cargo/bin:/Users/ada/Library/pnpm:/Users/ada/.local/bin";

std::string pathFrom(std::string_view inherited, fakes::FakeFileManager& files) {
    return toolPath(inherited, files, "/Users/ada");
}

TEST(ToolPath, addsFoldersThatFinderDoesNotPassOn) {
    fakes::FakeFileManager files;
    files.addFile("/etc/paths", "/usr/local/bin\n/System/Cryptexes/App/usr/bin\n/usr/bin\n/bin\n/usr/sbin\n/sbin\n");
    EXPECT_EQ(pathFrom(ofTheFinder, files),
              "/usr/bin:/bin:/usr/sbin:/sbin:/usr/local/bin:/System/Cryptexes/App/usr/bin" + added);
}

TEST(ToolPath, inheritedFoldersStayFirstAndInOrder) {
    fakes::FakeFileManager files;
    files.addFile("/etc/paths", "/bin\n/usr/bin\n");
    EXPECT_EQ(pathFrom("/opt/homebrew/bin:/usr/bin:/own", files),
              "/opt/homebrew/bin:/usr/bin:/own:/bin:/Users/ada/.cargo/bin:/Users/ada/Library/pnpm:"
              "/Users/ada/.local/bin");
}

TEST(ToolPath, readsFurtherListsByName) {
    fakes::FakeFileManager files;
    files.addFile("/etc/paths.d/b", "/second\n");
    files.addFile("/etc/paths.d/a", "/first\n/first\n");
    files.addFile("/etc/paths.d/c", "/third");
    EXPECT_EQ(pathFrom("/bin", files), "/bin:/first:/second:/third" + added);
}

TEST(ToolPath, withoutListsKnowsHomebrewAndHome) {
    fakes::FakeFileManager files;
    EXPECT_EQ(pathFrom("/bin", files), "/bin" + added);
}

TEST(ToolPath, withoutInheritedPathStartsWithSystemFolders) {
    fakes::FakeFileManager files;
    EXPECT_EQ(pathFrom("", files), ofTheFinder + added);
}

TEST(ToolPath, takesNoRelativeFolder) {
    fakes::FakeFileManager files;
    files.addFile("/etc/paths", "bin\n.\n~/bin\n");
    EXPECT_EQ(pathFrom(":.:bin:/bin:", files), "/bin" + added);
}

TEST(ToolPath, takesNoFolderThatWouldBecomeTwo) {
    fakes::FakeFileManager files;
    files.addFile("/etc/paths", "/one:/two\n/three\n");
    EXPECT_EQ(pathFrom("/bin", files), "/bin:/three" + added);
}

TEST(ToolPath, skipsListsThatCannotBeReadOrAreTooLarge) {
    fakes::FakeFileManager files;
    files.addFolder("/etc/paths.d/folder");
    std::string large = "/large\n";
    large.resize(70'000, '\n');
    files.addFile("/etc/paths", large);
    EXPECT_EQ(pathFrom("/bin", files), "/bin" + added);
}

}  // namespace
}  // namespace zelk
