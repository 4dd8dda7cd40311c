// SPDX-License-Identifier: MIT
#include "admin/AdminCommand.h"

#include <gmock/gmock.h>

#include "system/AdminLines.h"
#include "system/MaintenanceLines.h"
#include "system/SnapshotCommands.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Words = std::vector<std::string>;

bool accepts(const Words& arguments) {
    return adminCommand(arguments).refusal.empty();
}

TEST(AdminCommand, freesMemoryByItself) {
    const AdminCommand command = adminCommand({"free-memory"});
    EXPECT_EQ(command.refusal, "");
    EXPECT_TRUE(command.dropsCaches);
    EXPECT_THAT(command.programs, IsEmpty());
}

TEST(AdminCommand, deletesOneSnapshotThroughSnapper) {
    const AdminCommand command = adminCommand({"delete-snapshot", "root", "12"});
    EXPECT_EQ(command.refusal, "");
    EXPECT_FALSE(command.dropsCaches);
    EXPECT_THAT(command.programs, ElementsAre(Words{"/usr/bin/snapper", "-c", "root", "delete", "--sync", "12"}));
}

TEST(AdminCommand, thinsInTwoSteps) {
    const AdminCommand command = adminCommand({"thin-snapshots", "home"});
    EXPECT_EQ(command.refusal, "");
    EXPECT_FALSE(command.dropsCaches);
    EXPECT_THAT(
        command.programs,
        ElementsAre(Words{"/usr/bin/snapper", "-c", "home", "cleanup", "--free-space", "5000000000", "number"},
                    Words{"/usr/bin/snapper", "-c", "home", "cleanup", "--free-space", "5000000000", "timeline"}));
}

TEST(AdminCommand, removesExactlyOnePackage) {
    const AdminCommand command = adminCommand({"remove-package", "falkon"});
    EXPECT_EQ(command.refusal, "");
    EXPECT_FALSE(command.dropsCaches);
    EXPECT_THAT(command.programs, ElementsAre(Words{"/usr/bin/dpkg", "--remove", "falkon"}));
}

TEST(AdminCommand, knowsFourVerbs) {
    EXPECT_THAT(adminVerbs(), ElementsAre("free-memory", "delete-snapshot", "thin-snapshots", "remove-package"));
    for (const Words& arguments : {Words{}, Words{""}, Words{"free"}, Words{"free-memory "}, Words{"Free-memory"},
                                   Words{" free-memory"}, Words{"free-memory\n"}, Words{"--help"}, Words{"delete"},
                                   Words{"--", "free-memory"}, Words{"sh", "-c", "id"}}) {
        const AdminCommand command = adminCommand(arguments);
        EXPECT_EQ(command.refusal, "The verbs are free-memory, delete-snapshot, thin-snapshots and remove-package.");
        EXPECT_FALSE(command.dropsCaches);
        EXPECT_THAT(command.programs, IsEmpty());
    }
}

TEST(AdminCommand, takesAsManyArgumentsAsTheVerbHas) {
    EXPECT_EQ(adminCommand({"free-memory", ""}).refusal, "free-memory takes no arguments.");
    const std::string deletion =
        "delete-snapshot takes the name of a configuration of snapper and the number of a snapshot.";
    EXPECT_EQ(adminCommand({"delete-snapshot"}).refusal, deletion);
    EXPECT_EQ(adminCommand({"delete-snapshot", "root"}).refusal, deletion);
    EXPECT_EQ(adminCommand({"delete-snapshot", "root", "1", "2"}).refusal, deletion);
    const std::string thinning = "thin-snapshots takes the name of a configuration of snapper.";
    EXPECT_EQ(adminCommand({"thin-snapshots"}).refusal, thinning);
    EXPECT_EQ(adminCommand({"thin-snapshots", "root", "home"}).refusal, thinning);
    const std::string removal = "remove-package takes the name of a package.";
    EXPECT_EQ(adminCommand({"remove-package"}).refusal, removal);
    EXPECT_EQ(adminCommand({"remove-package", "falkon", "gimp"}).refusal, removal);
}

TEST(AdminCommand, configurationIsAName) {
    const auto taken = [](const std::string& config) {
        const bool thins = accepts({"thin-snapshots", config});
        EXPECT_EQ(thins, accepts({"delete-snapshot", config, "1"})) << config;
        return thins;
    };
    for (const std::string& config : {std::string("a"), std::string("azAZ09_-"), std::string("0"), std::string("_"),
                                      std::string("a-"), std::string(255, 'x')})
        EXPECT_TRUE(taken(config)) << config;
    for (const std::string& config : {std::string(), std::string(256, 'x'), std::string(100'000, 'x'),
                                      std::string("a\0", 2), std::string("a\0b", 3)})
        EXPECT_FALSE(taken(config)) << config.size();
    for (const char* config : {"-",   "-a",   "--help", "a b",  "a\n", "\na", "a.b", ".", "..", "a/b", "/",
                               "a;b", "$(a)", "ä",      "\xff", "a@",  "[",   "`",   "{", "a+", "a:b"})
        EXPECT_FALSE(taken(config)) << config;
}

TEST(AdminCommand, numberCountsFromOneInThirtyTwoBits) {
    const auto taken = [](const std::string& number) { return accepts({"delete-snapshot", "root", number}); };
    for (const char* number : {"1", "9", "10", "999999999", "1000000000", "4294967294", "4294967295"})
        EXPECT_TRUE(taken(number)) << number;
    for (const char* number :
         {"",    "0",  "00", "01", "4294967296", "4294967297", "5000000000", "9999999999", "10000000000",
          "-1",  "+1", " 1", "1 ", "1\n",        "1-2",        "1,2",        "1.0",        "1e3",
          "0x1", "a",  "/",  ":",  "１"})
        EXPECT_FALSE(taken(number)) << number;
    EXPECT_FALSE(taken(std::string("1\0", 2)));
    EXPECT_FALSE(taken(std::string(100'000, '1')));
}

TEST(AdminCommand, packageIsAName) {
    const auto taken = [](const std::string& name) { return accepts({"remove-package", name}); };
    for (const std::string& name :
         {std::string("ab"), std::string("0ad"), std::string("g++"), std::string("python3.11"), std::string("a-"),
          std::string("az09+.-"), std::string(255, 'x')})
        EXPECT_TRUE(taken(name)) << name;
    for (const std::string& name : {std::string(), std::string("a"), std::string(256, 'x'), std::string("ab\0", 3)})
        EXPECT_FALSE(taken(name)) << name.size();
    for (const char* name :
         {"-o", "--root=/", "+a",  ".a",   "Ab", "aB",    "a_b", "a b", "ab\n", "a:i386", "a/stable", "a=1",
          "a*", "a?",       "a;b", "$(a)", "aä", "a\xff", "a{",  "a`",  "a/",   "a@",     "a["})
        EXPECT_FALSE(taken(name)) << name;
}

TEST(AdminCommand, environmentIsFixed) {
    EXPECT_THAT(adminEnvironment(),
                ElementsAre("PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LANG=C.UTF-8", "DEBIAN_FRONTEND=noninteractive"));
}

TEST(AdminCommand, acceptsWhatEveryLineBecomes) {
    for (const std::string& line :
         {freeMemoryLine(SystemKind::desktopLinux),
          deleteLine(SnapshotKeeper::snapper, {"daily", std::nullopt, false, true, "root/12"}).value(),
          thinLine({SnapshotKeeper::snapper, {}, "root", false}).value(),
          std::string("DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --remove falkon")}) {
        const auto arguments = adminArguments(line);
        ASSERT_TRUE(arguments.has_value()) << line;
        EXPECT_TRUE(accepts(*arguments)) << line;
    }
}

}  // namespace
}  // namespace zelk
