// SPDX-License-Identifier: MIT
#include "platform/FolderPath.h"

#include <gtest/gtest.h>

namespace zelk {

TEST(FolderPath, dropsTrailingSlashes) {
    EXPECT_EQ(normalFolder("/a/home/"), "/a/home");
    EXPECT_EQ(normalFolder("/a/home///"), "/a/home");
    EXPECT_EQ(normalFolder("a/"), "a");
}

TEST(FolderPath, collapsesRepeatedSlashes) {
    EXPECT_EQ(normalFolder("//a///home"), "/a/home");
}

TEST(FolderPath, dropsDotComponents) {
    EXPECT_EQ(normalFolder("/./a/./home/."), "/a/home");
    EXPECT_EQ(normalFolder("/a/./."), "/a");
    EXPECT_EQ(normalFolder("./a"), "a");
}

TEST(FolderPath, keepsDotsInNames) {
    for (const char* path : {"/a/.home", "/a/home.", "/.../a", "/a/..b"}) EXPECT_EQ(normalFolder(path), path);
}

TEST(FolderPath, keepsDotDotComponents) {
    EXPECT_EQ(normalFolder("/a/link/../b/"), "/a/link/../b");
    EXPECT_EQ(normalFolder("../a"), "../a");
}

TEST(FolderPath, keepsRootAsOneSlash) {
    for (const char* path : {"/", "//", "/.", "/./"}) EXPECT_EQ(normalFolder(path), "/");
}

TEST(FolderPath, keepsWorkingDirectoryAsDot) {
    for (const char* path : {".", "./", "././."}) EXPECT_EQ(normalFolder(path), ".");
}

TEST(FolderPath, keepsEmptyPath) {
    EXPECT_EQ(normalFolder(""), "");
}

TEST(FolderPath, keepsNamesThatAreNotUtf8) {
    EXPECT_EQ(normalFolder("/caf\xe9/./\n /"), "/caf\xe9/\n ");
    EXPECT_EQ(normalFolder(std::string("/a\0b/", 5)), std::string("/a\0b", 4));
}

TEST(FolderPath, isInFolderComparesWholeComponents) {
    EXPECT_TRUE(isInFolder("/home/me", "/home/me"));
    EXPECT_TRUE(isInFolder("/home/me/.local/share", "/home/me"));
    EXPECT_TRUE(isInFolder("/home", "/"));
    EXPECT_TRUE(isInFolder("/", "/"));
    EXPECT_FALSE(isInFolder("/home/meadow", "/home/me"));
    EXPECT_FALSE(isInFolder("/home", "/home/me"));
    EXPECT_FALSE(isInFolder("/data/home/me", "/home/me"));
}

TEST(FolderPath, pathInJoinsFolderAndName) {
    EXPECT_EQ(pathIn("/", "a"), "/a");
    EXPECT_EQ(pathIn("/a", "b"), "/a/b");
}

}  // namespace zelk
