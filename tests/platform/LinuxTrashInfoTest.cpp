// SPDX-License-Identifier: MIT
#include "platform/linux/trash/TrashInfo.h"

#include <gtest/gtest.h>

namespace zelk {
namespace {

std::tm date() {
    std::tm date{};
    date.tm_year = 126;
    date.tm_mon = 2;
    date.tm_mday = 5;
    date.tm_hour = 7;
    date.tm_min = 8;
    date.tm_sec = 9;
    return date;
}

std::string repeated(std::string_view part, std::size_t times) {
    std::string text;
    for (; times > 0; --times) text += part;
    return text;
}

TEST(TrashInfo, recordsPathAndDeletionDate) {
    EXPECT_EQ(trashInfoText("/home/me/notes.txt", date()),
              "[Trash Info]\nPath=/home/me/notes.txt\nDeletionDate=2026-03-05T07:08:09\n");
}

TEST(TrashInfo, percentEncodesPath) {
    EXPECT_EQ(trashInfoText("az AZ09-_.~/\n%=[];\"\xc3\xbc\xff", date()),
              "[Trash Info]\nPath=az%20AZ09-_.~/%0A%25%3D%5B%5D%3B%22%C3%BC%FF\nDeletionDate=2026-03-05T07:08:09\n");
}

TEST(TrashName, keepsTheOriginalNameFirst) {
    EXPECT_EQ(trashName("notes.txt", 1, 245), "notes.txt");
    EXPECT_EQ(trashName(".hidden", 1, 245), ".hidden");
    EXPECT_EQ(trashName("\xff\n", 1, 245), "\xff\n");
}

TEST(TrashName, insertsNumberBeforeTheExtension) {
    EXPECT_EQ(trashName("notes.txt", 2, 245), "notes.2.txt");
    EXPECT_EQ(trashName("a.tar.gz", 10, 245), "a.tar.10.gz");
    EXPECT_EQ(trashName("__pycache__", 2000, 245), "__pycache__.2000");
    EXPECT_EQ(trashName(".hidden", 2, 245), ".hidden.2");
    EXPECT_EQ(trashName("dot.", 2, 245), "dot.2.");
}

TEST(TrashName, shortensBeforeTheExtension) {
    EXPECT_EQ(trashName(repeated("x", 251) + ".txt", 1, 245), repeated("x", 241) + ".txt");
    EXPECT_EQ(trashName(repeated("x", 251) + ".txt", 12, 245), repeated("x", 238) + ".12.txt");
    EXPECT_EQ(trashName(repeated("x", 255), 1, 245), repeated("x", 245));
    EXPECT_EQ(trashName(repeated("x", 245), 1, 245), repeated("x", 245));
    EXPECT_EQ(trashName(repeated("x", 245), 2, 245), repeated("x", 243) + ".2");
}

TEST(TrashName, ignoresVeryLongExtension) {
    EXPECT_EQ(trashName("a." + repeated("x", 253), 1, 245), "a." + repeated("x", 243));
}

TEST(TrashName, neverCutsACharacter) {
    for (const std::string character : {"ü", "文", "😀"}) {
        for (std::size_t limit = 200; limit < 206; ++limit) {
            const std::string name = trashName(repeated(character, 63) + repeated("x", 252), 1, limit);
            const std::string cut = trashName(repeated(character, 80), 1, std::min<std::size_t>(limit, 155));
            EXPECT_LE(name.size(), limit);
            EXPECT_EQ(cut, repeated(character, cut.size() / character.size()));
        }
    }
}

TEST(TrashName, shortensNamesThatAreNotUtf8) {
    EXPECT_EQ(trashName(repeated("\x80", 255), 1, 245), repeated("\x80", 245));
    EXPECT_EQ(trashName(repeated("\xff", 255), 3, 245), repeated("\xff", 243) + ".3");
}

}  // namespace
}  // namespace zelk
