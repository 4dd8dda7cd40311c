// SPDX-License-Identifier: MIT
#include "platform/TrashPlaces.h"

#include <gtest/gtest.h>

namespace zelk {
namespace {

const TrashPlaces trashes({"/home/me/Trash/files", "/data/Trash/files"}, {"/.Trash/7/files", "/.Trash-7/files"});

TEST(TrashPlaces, matchWholePaths) {
    EXPECT_TRUE(trashes.areAt("/home/me/Trash/files"));
    EXPECT_TRUE(trashes.areAt("/data/Trash/files"));
    for (const char* path : {"", "/", "/home/me/Trash", "/home/me/Trash/files/a", "/home/me/Trash/files2",
                             "/home/me/trash/files", "/x/home/me/Trash/files", "/home/me/Trash/info"})
        EXPECT_FALSE(trashes.areAt(path)) << path;
}

TEST(TrashPlaces, matchPathEndingsOnAnyVolume) {
    EXPECT_TRUE(trashes.areAt("/.Trash-7/files"));
    EXPECT_TRUE(trashes.areAt("/media/me/my stick/.Trash-7/files"));
    EXPECT_TRUE(trashes.areAt("/media/me/my stick/.Trash/7/files"));
    for (const char* path :
         {"/media/.Trash-7", "/media/.Trash-7/files/a", "/media/.Trash-7/info", "/media/.Trash-77/files",
          "/media/a.Trash-7/files", "/media/.Trash/files", "/media/.Trash/8/files"})
        EXPECT_FALSE(trashes.areAt(path)) << path;
}

TEST(TrashPlaces, holdDescendantsAtAnyDepth) {
    for (const char* path : {"/home/me/Trash/files", "/home/me/Trash/files/a", "/home/me/Trash/files/a/b/c",
                             "/data/Trash/files/x", "/media/.Trash-7/files/a/b", "/.Trash/7/files/files"})
        EXPECT_TRUE(trashes.hold(path)) << path;
    for (const char* path : {"", "/", "/home", "/home/me/Trash", "/home/me/Trash/files2/a", "/home/me/Trash/info/a",
                             "/media/.Trash-7/info/files/a", "files/a"})
        EXPECT_FALSE(trashes.hold(path)) << path;
}

TEST(TrashPlaces, holdIgnoresTrailingSlash) {
    EXPECT_TRUE(trashes.hold("/home/me/Trash/files/"));
    EXPECT_TRUE(trashes.hold("/media/.Trash-7/files//"));
    EXPECT_FALSE(trashes.hold("/home/me/Trash/"));
}

TEST(TrashPlaces, defaultMatchesNothing) {
    for (const char* path : {"", "/", "/home/me/.Trash", "/home/me/.local/share/Trash/files/a"}) {
        EXPECT_FALSE(TrashPlaces().areAt(path)) << path;
        EXPECT_FALSE(TrashPlaces().hold(path)) << path;
    }
}

}  // namespace
}  // namespace zelk
