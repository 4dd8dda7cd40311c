// SPDX-License-Identifier: MIT
#include "reclaim/FirefoxProfiles.h"

#include <gmock/gmock.h>

#include "fakes/FakeFileManager.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

Strings pathsIn(std::string_view list) {
    Strings paths;
    for (const FirefoxProfile& profile : parseFirefoxProfiles(list)) paths.push_back(profile.path);
    return paths;
}

TEST(FirefoxProfiles, takesEveryProfileWhicheverIsTheDefault) {
    EXPECT_THAT(pathsIn("[Install4F96D1932A9F858E]\nDefault=b.used\nLocked=1\n\n"
                        "[Profile1]\nName=default\nIsRelative=1\nPath=a.idle\nDefault=1\n\n"
                        "[Profile0]\nName=default-esr\nIsRelative=1\nPath=b.used\n\n"
                        "[General]\nStartWithLastProfile=1\nVersion=2\n"),
                ElementsAre("a.idle", "b.used"));
}

TEST(FirefoxProfiles, takesAbsolutePathsThatAreSaidToBe) {
    EXPECT_THAT(pathsIn("[Profile0]\nIsRelative=0\nPath=/data//web/./mine/\n"), ElementsAre("/data/web/mine"));
    EXPECT_THAT(pathsIn("[Profile0]\nPath=/data/mine\n[Profile1]\nPath=Profiles/own\n"),
                ElementsAre("/data/mine", "Profiles/own"));
}

TEST(FirefoxProfiles, refusesPathsOfAnotherKindThanTheySay) {
    EXPECT_THAT(pathsIn("[Profile0]\nIsRelative=1\nPath=/etc\n"), IsEmpty());
    EXPECT_THAT(pathsIn("[Profile0]\nIsRelative=0\nPath=own\n"), IsEmpty());
}

TEST(FirefoxProfiles, refusesPathsThatCouldBeNoProfile) {
    for (const char* path : {"", ".", "./", "..", "../..", "a/../../b", "a/..", "/", "//", "/data/../etc", "/.."})
        EXPECT_THAT(pathsIn("[Profile0]\nPath=" + std::string(path) + "\n"), IsEmpty()) << path;
    EXPECT_THAT(pathsIn(std::string_view("[Profile0]\nPath=a\0b\n", 21)), IsEmpty());
    EXPECT_THAT(pathsIn("[Profile0]\nPath=..a/b..\n"), ElementsAre("..a/b.."));
}

TEST(FirefoxProfiles, sectionsOfOtherNamesAreNone) {
    for (const char* name : {"Profile", "Profilex", "Profile1x", "profile0", "MyProfile0", "Profile-1", "Profile 0"})
        EXPECT_THAT(pathsIn("[" + std::string(name) + "]\nPath=own\n"), IsEmpty()) << name;
    EXPECT_THAT(pathsIn("[Profile0\nPath=own\n"), IsEmpty());
    EXPECT_THAT(pathsIn("Path=own\n"), IsEmpty());
    EXPECT_THAT(pathsIn("[Profile10]\nPath=own\n"), ElementsAre("own"));
}

TEST(FirefoxProfiles, keysCountInTheirSectionOnly) {
    EXPECT_THAT(pathsIn("[Profile0]\nName=x\n[General]\nPath=own\n"), IsEmpty());
    EXPECT_THAT(pathsIn("[Profile0]\nName=x\n[Profile1]\nPath=own\n"), ElementsAre("own"));
    EXPECT_THAT(pathsIn("[Profile0]\npath=own\nPaths=own\n"), IsEmpty());
}

TEST(FirefoxProfiles, lastOfTheSameKeysCounts) {
    EXPECT_THAT(pathsIn("[Profile0]\nPath=old\nIsRelative=0\nPath=new\nIsRelative=1\n"), ElementsAre("new"));
}

TEST(FirefoxProfiles, readsListsOfOtherSystemsAndEditors) {
    EXPECT_THAT(pathsIn("\xEF\xBB\xBF[Profile0]\r\nIsRelative=1\r\nPath=my own\r\n"), ElementsAre("my own"));
    EXPECT_THAT(pathsIn("  [Profile0]  \n ; Path=no\n # Path=no\n Path = a=b \n"), ElementsAre("a=b"));
    EXPECT_THAT(pathsIn("[Profile0]\nPath=own"), ElementsAre("own"));
    EXPECT_THAT(pathsIn(""), IsEmpty());
}

TEST(FirefoxProfiles, keepsBytesOfNames) {
    EXPECT_THAT(pathsIn("[Profile0]\nPath=\xff\x80\n"), ElementsAre("\xff\x80"));
}

TEST(FirefoxProfiles, foldersAreThoseBesideTheList) {
    fakes::FakeFileManager files;
    files.addFile("/ff/profiles.ini",
                  "[Profile0]\nPath=own\n[Profile1]\nPath=/data/own\n[Profile2]\nPath=./own\n[Profile3]\nPath=x/y\n");
    EXPECT_THAT(firefoxProfilesIn(files, "/ff"), ElementsAre("/ff/own", "/data/own", "/ff/x/y"));
    EXPECT_THAT(firefoxProfilesIn(files, "/nowhere"), IsEmpty());
}

TEST(FirefoxProfiles, readsNoListThatIsTooLarge) {
    fakes::FakeFileManager files;
    const std::string profile = "[Profile0]\nPath=own\n";
    files.addFile("/ff/profiles.ini", profile + std::string((1 << 20) - profile.size(), '\n'));
    EXPECT_THAT(firefoxProfilesIn(files, "/ff"), ElementsAre("/ff/own"));
    files.addFile("/ff/profiles.ini", profile + std::string((1 << 20) - profile.size() + 1, '\n'));
    EXPECT_THAT(firefoxProfilesIn(files, "/ff"), IsEmpty());
}

}  // namespace
}  // namespace zelk
