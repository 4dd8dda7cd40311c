// SPDX-License-Identifier: MIT
#include "platform/posix/MountTable.h"

#include <gmock/gmock.h>

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

constexpr std::string_view sample =
    "21 1 253:0 / / rw,relatime - ext4 /dev/vda rw,discard\n"
    "22 21 0:21 / /proc rw,nosuid,nodev shared:5 - proc proc rw\n"
    "40 21 8:17 / /media/me/My\\040stick rw,relatime shared:9 master:2 - vfat /dev/sdb1 rw\n"
    "41 21 253:0 /var/data /home/me/data rw - ext4 /dev/vda rw\n";

TEST(MountTable, hasANumberAndAPlaceOfEachMount) {
    EXPECT_THAT(parseMountTable(sample), ElementsAre(Mount{21, "/"}, Mount{22, "/proc"},
                                                     Mount{40, "/media/me/My stick"}, Mount{41, "/home/me/data"}));
}

TEST(MountTable, escapedBytesAreThemselves) {
    EXPECT_THAT(parseMountTable("1 0 0:1 / /a\\040b\\011c\\012d\\134e\\377 rw - x y z\n"),
                ElementsAre(Mount{1, "/a b\tc\nd\\e\xff"}));
}

TEST(MountTable, whatIsNoEscapeStaysAsItIs) {
    EXPECT_THAT(parseMountTable("1 0 0:1 / /a\\b\\04\\489\\ rw\n"), ElementsAre(Mount{1, "/a\\b\\04\\489\\"}));
    EXPECT_THAT(parseMountTable("1 0 0:1 / /a\\777 rw\n"), ElementsAre(Mount{1, "/a\\777"}));
}

TEST(MountTable, linesOfAnotherFormArePassedOver) {
    EXPECT_THAT(parseMountTable(""), IsEmpty());
    EXPECT_THAT(parseMountTable("\n\n 1 \n1 2 3\nx 0 0:1 / /a rw\n-1 0 0:1 / /a rw\n1x 0 0:1 / /a rw\n"), IsEmpty());
    EXPECT_THAT(parseMountTable("99999999999999999999 0 0:1 / /a rw\n1 0 0:1 / relative rw\n"), IsEmpty());
    EXPECT_THAT(parseMountTable("1 0 0:1 / /a\\000b rw\n2 0 0:1 / /b rw\n"), ElementsAre(Mount{2, "/b"}));
}

TEST(MountTable, lastLineNeedsNoEnd) {
    EXPECT_THAT(parseMountTable("7 0 0:1 / /last"), ElementsAre(Mount{7, "/last"}));
}

TEST(MountTable, findsAMountByItsNumber) {
    const auto table = parseMountTable(sample);
    EXPECT_THAT(mountPointOf(table, 40), Optional(std::string("/media/me/My stick")));
    EXPECT_FALSE(mountPointOf(table, 39));
}

TEST(MountTable, knowsWhatIsMountedBelowAFolder) {
    const auto table = parseMountTable(sample);
    for (const char* above : {"/", "/home", "/home/me", "/home/me/", "/media/me"})
        EXPECT_TRUE(isMountedBelow(table, above)) << above;
    for (const char* other : {"/home/me/data", "/home/m", "/home/me/dat", "/proc", "/home/me/data/below", "/nowhere"})
        EXPECT_FALSE(isMountedBelow(table, other)) << other;
}

TEST(MountTable, joinsAFolderAndAName) {
    EXPECT_EQ(pathIn("/", "a"), "/a");
    EXPECT_EQ(pathIn("/a", "b"), "/a/b");
}

}  // namespace
}  // namespace zelk
