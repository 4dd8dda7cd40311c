// SPDX-License-Identifier: MIT
#include "platform/ItemPath.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace zelk {
namespace {

using namespace std::string_view_literals;

std::string textOf(std::string_view path) {
    const std::optional<ItemPath> item = ItemPath::from(path);
    return item ? item->text() : "<none>";
}

TEST(ItemPath, rejectsEmptyPath) {
    EXPECT_FALSE(ItemPath::from(""));
}

TEST(ItemPath, rejectsRelativePath) {
    for (const char* path : {"a", "a/b", "./a", "../a", " /a", "~", "~/a"}) EXPECT_FALSE(ItemPath::from(path)) << path;
}

TEST(ItemPath, rejectsRoot) {
    for (const char* path : {"/", "//", "///", "////////"}) EXPECT_FALSE(ItemPath::from(path)) << path;
}

TEST(ItemPath, rejectsDotComponents) {
    for (const char* path : {".", "/.", "/./", "/./a", "/a/.", "/a/./", "/a/./b"})
        EXPECT_FALSE(ItemPath::from(path)) << path;
}

TEST(ItemPath, rejectsDotDotComponents) {
    for (const char* path : {"..", "/..", "/../", "/../a", "/a/..", "/a/../", "/a/../b"})
        EXPECT_FALSE(ItemPath::from(path)) << path;
}

TEST(ItemPath, acceptsDotsInNames) {
    for (const char* path : {"/...", "/.a", "/a.", "/..a", "/a..", "/.../b"}) EXPECT_EQ(textOf(path), path);
}

TEST(ItemPath, rejectsZeroByte) {
    EXPECT_FALSE(ItemPath::from("\0"sv));
    EXPECT_FALSE(ItemPath::from("/a\0"sv));
    EXPECT_FALSE(ItemPath::from("/\0"sv));
    EXPECT_FALSE(ItemPath::from("/a\0/b"sv));
}

TEST(ItemPath, dropsRepeatedAndTrailingSlashes) {
    EXPECT_EQ(textOf("/a/"), "/a");
    EXPECT_EQ(textOf("/a///"), "/a");
    EXPECT_EQ(textOf("//a//b//"), "/a/b");
}

TEST(ItemPath, keepsBytesThatAreNotUtf8) {
    EXPECT_EQ(textOf("/\xff\xfe/\n/\xc3"), "/\xff\xfe/\n/\xc3");
}

TEST(ItemPath, splitsIntoParentAndName) {
    const std::optional<ItemPath> deep = ItemPath::from("/a/b c//d/");
    ASSERT_TRUE(deep);
    EXPECT_EQ(deep->parent(), "/a/b c");
    EXPECT_EQ(deep->name(), "d");
    const std::optional<ItemPath> shallow = ItemPath::from("//a/");
    ASSERT_TRUE(shallow);
    EXPECT_EQ(shallow->parent(), "/");
    EXPECT_EQ(shallow->name(), "a");
}

TEST(ItemPath, equalityIgnoresSpelling) {
    EXPECT_EQ(ItemPath::from("/a/b"), ItemPath::from("//a/b/"));
    EXPECT_NE(ItemPath::from("/a/b"), ItemPath::from("/a/B"));
}

TEST(ItemPath, belowSplitsRootAndWay) {
    const auto parts = [](std::string_view root, std::string_view path) {
        const std::optional<ItemPath> item = ItemPath::below(root, path);
        return item ? item->root() + "|" + std::string(item->way()) + "|" + std::string(item->name()) : "<none>";
    };
    EXPECT_EQ(parts("/home/me", "/home/me/a/b/c"), "/home/me|a/b|c");
    EXPECT_EQ(parts("/home/me//", "/home/me/a/b"), "/home/me|a|b");
    EXPECT_EQ(parts("/home/me", "/home/me/a"), "/home/me||a");
    EXPECT_EQ(parts("/", "/a/b/c"), "/|a/b|c");
    EXPECT_EQ(parts("/", "/a"), "/||a");
}

TEST(ItemPath, belowIgnoresUnrelatedRoot) {
    for (const std::string_view root : {"/home/me/a/b", "/home/you", "/home/m", "home/me", "", "/home/../home/me"}) {
        const std::optional<ItemPath> item = ItemPath::below(root, "/home/me/a/b");
        ASSERT_TRUE(item);
        EXPECT_EQ(item->root(), "/home/me/a") << root;
        EXPECT_EQ(item->way(), "") << root;
        EXPECT_EQ(*item, *ItemPath::from("/home/me/a/b"));
    }
    EXPECT_FALSE(ItemPath::below("/home/me", "/home/me/../you"));
    EXPECT_FALSE(ItemPath::below("/home/me", ""));
}

}  // namespace
}  // namespace zelk
