// SPDX-License-Identifier: MIT
#include "system/AdminLines.h"

#include <gtest/gtest.h>

#include "system/MaintenanceLines.h"
#include "system/SnapshotCommands.h"

namespace zelk {
namespace {

using AdminWords = std::vector<std::string>;

std::string lineOfDeleting(const std::string& config, const std::string& number) {
    return "/usr/bin/snapper -c " + config + " delete --sync " + number;
}

std::string lineOfThinning(const std::string& first, const std::string& second,
                           const std::string& bytes = "5000000000") {
    return "/usr/bin/snapper -c " + first + " cleanup --free-space " + bytes + " number; /usr/bin/snapper -c " +
           second + " cleanup --free-space " + bytes + " timeline";
}

std::string lineOfRemoving(const std::string& name) {
    return "DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --remove " + name;
}

TEST(AdminLines, knowsEveryLine) {
    EXPECT_EQ(adminArguments("sync; echo 3 > /proc/sys/vm/drop_caches"), AdminWords{"free-memory"});
    EXPECT_EQ(adminArguments(freeMemoryLine(SystemKind::desktopLinux)), AdminWords{"free-memory"});
    EXPECT_EQ(
        adminArguments(deleteLine(SnapshotKeeper::snapper, {"daily", std::nullopt, false, true, "root/12"}).value()),
        (AdminWords{"delete-snapshot", "root", "12"}));
    EXPECT_EQ(adminArguments(thinLine({SnapshotKeeper::snapper, {}, "root", false}).value()),
              (AdminWords{"thin-snapshots", "root"}));
    EXPECT_EQ(adminArguments(lineOfRemoving("falkon")), (AdminWords{"remove-package", "falkon"}));
}

TEST(AdminLines, takesNamesAsTheyAre) {
    EXPECT_EQ(adminArguments(lineOfDeleting("My_home-2", "4294967295")),
              (AdminWords{"delete-snapshot", "My_home-2", "4294967295"}));
    EXPECT_EQ(adminArguments(lineOfThinning("-c", "-c")), (AdminWords{"thin-snapshots", "-c"}));
    EXPECT_EQ(adminArguments(lineOfRemoving("libstdc++-12-dev")), (AdminWords{"remove-package", "libstdc++-12-dev"}));
    EXPECT_EQ(adminArguments(lineOfRemoving("python3.11")), (AdminWords{"remove-package", "python3.11"}));
}

TEST(AdminLines, bothStepsOfThinningNameOneConfiguration) {
    EXPECT_EQ(adminArguments(lineOfThinning("root", "home")), std::nullopt);
    EXPECT_EQ(adminArguments(lineOfThinning("root", "roo")), std::nullopt);
}

TEST(AdminLines, knowsNoOtherAmount) {
    EXPECT_EQ(adminArguments(lineOfThinning("root", "root", "500000000")), std::nullopt);
    EXPECT_EQ(adminArguments(lineOfThinning("root", "root", "50000000000")), std::nullopt);
}

TEST(AdminLines, knowsNoNameThatAShellWouldReadOtherwise) {
    for (const std::string name : {"",    " ",   "a b", "a;b", "a;",  "$(a)", "`a`",   "$a",   "a&b",  "a|b",  "a>b",
                                   "a<b", "*",   "a?",  "[a]", "~",   "'a'",  "\"a\"", "\\a",  "a\nb", "a\tb", "#a",
                                   "!a",  "{a}", "(a)", "a=b", "a/b", "%1",   "ä",     "\xff", "a\r"}) {
        EXPECT_EQ(adminArguments(lineOfDeleting(name, "1")), std::nullopt) << name;
        EXPECT_EQ(adminArguments(lineOfDeleting("root", name)), std::nullopt) << name;
        EXPECT_EQ(adminArguments(lineOfThinning(name, name)), std::nullopt) << name;
        EXPECT_EQ(adminArguments(lineOfRemoving(name)), std::nullopt) << name;
    }
    EXPECT_EQ(adminArguments(lineOfDeleting(std::string("a\0b", 3), "1")), std::nullopt);
}

TEST(AdminLines, knowsNothingElse) {
    for (const std::string line : {"",
                                   " ",
                                   "sync",
                                   "sync; echo 1 > /proc/sys/vm/drop_caches",
                                   "sync; echo 3 > /proc/sys/vm/drop_caches ",
                                   "sync; echo 3 > /proc/sys/vm/drop_caches; reboot",
                                   "/usr/sbin/purge",
                                   "/usr/bin/resolvectl flush-caches",
                                   "snapper -c root delete --sync 1",
                                   "/usr/bin/snapper -c root delete 1",
                                   "/usr/bin/snapper delete --sync 1",
                                   "/usr/bin/snapper -c root delete --sync 1 2",
                                   "/usr/bin/snapper -c root delete --sync",
                                   "/usr/bin/snapper  -c root delete --sync 1",
                                   " /usr/bin/snapper -c root delete --sync 1",
                                   "/usr/bin/snapper -c root delete --sync 1 ",
                                   "/usr/bin/snapper -c root delete --sync 1\n",
                                   "/usr/bin/snapper -c root cleanup --free-space 5000000000 number",
                                   "/usr/bin/dpkg --remove falkon",
                                   "DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --purge falkon",
                                   "DEBIAN_FRONTEND=noninteractive /usr/bin/apt-get -y -q --no-auto-remove remove "
                                   "-- falkon",
                                   "apt-get remove falkon"}) {
        EXPECT_EQ(adminArguments(line), std::nullopt) << line;
    }
    for (const std::string& line :
         {lineOfDeleting("root", "1"), lineOfThinning("root", "root"), lineOfRemoving("falkon")}) {
        EXPECT_EQ(adminArguments(line + "; reboot"), std::nullopt) << line;
        EXPECT_EQ(adminArguments("true; " + line), std::nullopt) << line;
        EXPECT_EQ(adminArguments(line.substr(0, line.rfind(' '))), std::nullopt) << line;
    }
}

}  // namespace
}  // namespace zelk
