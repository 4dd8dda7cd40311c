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
    "41 21 253:0 /var/my\\040data /home/me/data rw - ext4 /dev/vda rw\n";

TEST(MountTable, parsesEachMount) {
    EXPECT_THAT(parseMountTable(sample),
                ElementsAre(Mount{21, 1, "253:0", "/", "/"}, Mount{22, 21, "0:21", "/", "/proc"},
                            Mount{40, 21, "8:17", "/", "/media/me/My stick"},
                            Mount{41, 21, "253:0", "/var/my data", "/home/me/data"}));
}

TEST(MountTable, decodesEscapedBytes) {
    EXPECT_THAT(parseMountTable("1 0 0:1 / /a\\040b\\011c\\012d\\134e\\377 rw - x y z\n"),
                ElementsAre(Mount{1, 0, "0:1", "/", "/a b\tc\nd\\e\xff"}));
}

TEST(MountTable, keepsInvalidEscapes) {
    EXPECT_THAT(parseMountTable("1 0 0:1 / /a\\b\\04\\489\\ rw\n"),
                ElementsAre(Mount{1, 0, "0:1", "/", "/a\\b\\04\\489\\"}));
    EXPECT_THAT(parseMountTable("1 0 0:1 / /a\\777 rw\n"), ElementsAre(Mount{1, 0, "0:1", "/", "/a\\777"}));
}

TEST(MountTable, skipsMalformedLines) {
    EXPECT_THAT(parseMountTable(""), IsEmpty());
    EXPECT_THAT(
        parseMountTable("\n\n 1 \n1 2 3\nx 0 0:1 / /a rw\n-1 0 0:1 / /a rw\n1x 0 0:1 / /a rw\n1 x 0:1 / /a rw\n"),
        IsEmpty());
    EXPECT_THAT(parseMountTable("99999999999999999999 0 0:1 / /a rw\n1 0 0:1 / relative rw\n"), IsEmpty());
    EXPECT_THAT(parseMountTable("1 0 0:1 / /a\\000b rw\n2 0 0:1 / /b rw\n"),
                ElementsAre(Mount{2, 0, "0:1", "/", "/b"}));
}

TEST(MountTable, acceptsUnterminatedLastLine) {
    EXPECT_THAT(parseMountTable("7 0 0:1 / /last"), ElementsAre(Mount{7, 0, "0:1", "/", "/last"}));
}

TEST(MountTable, tellsWholeVolumesFromPartsOfThem) {
    const auto table = parseMountTable(sample);
    EXPECT_TRUE(isWholeVolume(table, 40));
    EXPECT_FALSE(isWholeVolume(table, 41));
    EXPECT_FALSE(isWholeVolume(table, 39));
}

TEST(MountTable, findsMountPointById) {
    const auto table = parseMountTable(sample);
    EXPECT_THAT(mountPointOf(table, 40), Optional(std::string("/media/me/My stick")));
    EXPECT_FALSE(mountPointOf(table, 39));
}

TEST(MountTable, findsMountsBelowAFolder) {
    const auto table = parseMountTable(sample);
    for (const char* above : {"/", "/home", "/home/me", "/home/me/", "/media/me"})
        EXPECT_TRUE(isMountedBelow(table, above)) << above;
    for (const char* other : {"/home/me/data", "/home/m", "/home/me/dat", "/proc", "/home/me/data/below", "/nowhere"})
        EXPECT_FALSE(isMountedBelow(table, other)) << other;
}

// Mount 50 shows the folder /data of the volume that is mounted at "/" as mount 21.
constexpr std::string_view aliased =
    "21 1 253:0 / / rw - ext4 /dev/vda rw\n"
    "50 21 253:0 /data /alias rw - ext4 /dev/vda rw\n"
    "51 21 0:40 / /data/a/stick rw - tmpfs none rw\n"
    "52 50 0:41 / /alias/b/stick rw - tmpfs none rw\n"
    "53 51 0:42 / /data/a/stick/inner rw - tmpfs none rw\n"
    "54 99 0:43 / /data/unknown rw - tmpfs none rw\n";

TEST(MountTable, findsMountsUnderOtherPathsOfTheSameFolder) {
    const auto table = parseMountTable(aliased);
    for (const char* folder : {"/alias", "/alias/a", "/alias/a/", "/alias/a/stick"})
        EXPECT_TRUE(isMountedAnywhereIn(table, 50, folder)) << folder;
    for (const char* folder : {"/", "/data", "/data/a", "/data/b", "/data/b/stick", "/data/a/stick"})
        EXPECT_TRUE(isMountedAnywhereIn(table, 21, folder)) << folder;
    for (const char* folder : {"/alias/a/stick/below", "/alias/a/stic", "/alias/c", "/alias/unknown"})
        EXPECT_FALSE(isMountedAnywhereIn(table, 50, folder)) << folder;
    for (const char* folder : {"/data/b/stick/below", "/data/c", "/a", "/b"})
        EXPECT_FALSE(isMountedAnywhereIn(table, 21, folder)) << folder;
    EXPECT_FALSE(isMountedAnywhereIn(table, 51, "/data/a/stick/other"));
    EXPECT_TRUE(isMountedAnywhereIn(table, 51, "/data/a/stick/inner"));
}

TEST(MountTable, comparesOnlyPathsOfAnUnknownMount) {
    const auto table = parseMountTable(aliased);
    EXPECT_TRUE(isMountedAnywhereIn(table, 77, "/data/a"));
    EXPECT_FALSE(isMountedAnywhereIn(table, 77, "/alias/a"));
    EXPECT_FALSE(isMountedAnywhereIn(table, 50, "/elsewhere/a"));
}

}  // namespace
}  // namespace zelk
