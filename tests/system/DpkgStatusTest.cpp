// SPDX-License-Identifier: MIT
#include "system/apps/DpkgStatus.h"

#include <gmock/gmock.h>

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

/// A line as dpkg-query prints it: name, status, essential, protected, priority, size, provides, before, needs.
std::string dpkgLine(const std::string& name, const std::string& needs = {}, const std::string& provides = {},
                     const std::string& before = {}) {
    return name + "\tinstalled\tno\t\toptional\t10\t" + provides + "\t" + before + "\t" + needs + "\n";
}

std::vector<std::string> needing(const std::string& output, const std::string& name) {
    return packagesThatNeed(parseDpkgPackages(output), name);
}

}  // namespace

TEST(DpkgStatus, formatNamesNineFields) {
    EXPECT_STREQ(dpkgFormat,
                 "${Package}\\t${db:Status-Status}\\t${Essential}\\t${Protected}\\t${Priority}\\t${Installed-Size}\\t"
                 "${Provides}\\t${Pre-Depends}\\t${Depends}\\n");
}

TEST(DpkgStatus, readsSizeInUnitsOf1024Bytes) {
    EXPECT_EQ(parseDpkgPackages(dpkgLine("falkon")).at("falkon").bytes, 10'240U);
    EXPECT_EQ(parseDpkgPackages("falkon\tinstalled\tno\t\toptional\t\t\t\t\n").at("falkon").bytes, 0U);
    EXPECT_EQ(parseDpkgPackages("falkon\tinstalled\tno\t\toptional\t-1\t\t\t\n").at("falkon").bytes, 0U);
    EXPECT_EQ(parseDpkgPackages("falkon\tinstalled\tno\t\toptional\t18446744073709551615\t\t\t\n").at("falkon").bytes,
              0U);
}

TEST(DpkgStatus, knowsWhatBelongsToTheSystem) {
    const auto isForSystem = [](const std::string& essential, const std::string& isProtected,
                                const std::string& priority) {
        return parseDpkgPackages("pkg\tinstalled\t" + essential + "\t" + isProtected + "\t" + priority + "\t1\t\t\t\n")
            .at("pkg")
            .isForSystem;
    };
    EXPECT_FALSE(isForSystem("no", "", "optional"));
    EXPECT_FALSE(isForSystem("", "no", "extra"));
    EXPECT_FALSE(isForSystem("no", "no", ""));
    EXPECT_TRUE(isForSystem("yes", "", "optional"));
    EXPECT_TRUE(isForSystem("no", "yes", "optional"));
    EXPECT_TRUE(isForSystem("no", "", "required"));
    EXPECT_TRUE(isForSystem("no", "", "important"));
    EXPECT_TRUE(isForSystem("no", "", "standard"));
}

TEST(DpkgStatus, skipsWhatIsNotThere) {
    const auto names = [](const std::string& status) {
        return parseDpkgPackages("pkg\t" + status + "\tno\t\toptional\t1\t\t\t\n").size();
    };
    for (const char* there : {"installed", "unpacked", "half-installed", "half-configured", "triggers-pending"})
        EXPECT_EQ(names(there), 1U) << there;
    for (const char* gone : {"not-installed", "config-files", ""}) EXPECT_EQ(names(gone), 0U) << gone;
    EXPECT_THAT(parseDpkgPackages("\n\t\t\nUPPER\tinstalled\n-o\tinstalled\t\t\t\t\t\t\t\nx\tinstalled\n"), IsEmpty());
}

TEST(DpkgStatus, countsArchitectures) {
    const auto packages = parseDpkgPackages(dpkgLine("lib") + dpkgLine("lib") + dpkgLine("other"));
    EXPECT_EQ(packages.at("lib").instances, 2U);
    EXPECT_EQ(packages.at("other").instances, 1U);
}

TEST(DpkgStatus, tellsWhoNeedsAPackage) {
    const std::string all = dpkgLine("falkon", "libc6 (>= 2.34), libqt, data (= 1.0)") + dpkgLine("data") +
                            dpkgLine("libqt") + dpkgLine("plugins", "falkon (>= 22)") +
                            dpkgLine("early", "", "", "falkon");
    EXPECT_THAT(needing(all, "falkon"), ElementsAre("early", "plugins"));
    EXPECT_THAT(needing(all, "data"), ElementsAre("falkon"));
    EXPECT_THAT(needing(all, "libqt"), ElementsAre("falkon"));
    EXPECT_THAT(needing(all, "plugins"), IsEmpty());
    EXPECT_THAT(needing(all, "unknown"), IsEmpty());
}

TEST(DpkgStatus, anotherChoiceThatIsThereWillDo) {
    const std::string user = dpkgLine("user", "one | two");
    EXPECT_THAT(needing(user + dpkgLine("one"), "one"), ElementsAre("user"));
    EXPECT_THAT(needing(user + dpkgLine("one") + dpkgLine("two"), "one"), IsEmpty());
    EXPECT_THAT(needing(user + dpkgLine("one") + dpkgLine("two"), "two"), IsEmpty());
    // Whether the other is of the version that is asked for is not known.
    const std::string exact = dpkgLine("user", "one | two (>= 9)");
    EXPECT_THAT(needing(exact + dpkgLine("one") + dpkgLine("two"), "one"), ElementsAre("user"));
    EXPECT_THAT(needing(exact + dpkgLine("one") + dpkgLine("two"), "two"), IsEmpty());
}

TEST(DpkgStatus, whatIsProvidedCounts) {
    const std::string user = dpkgLine("user", "www-browser");
    EXPECT_THAT(needing(user + dpkgLine("falkon", "", "www-browser, other (= 1)"), "falkon"), ElementsAre("user"));
    EXPECT_THAT(needing(user + dpkgLine("falkon", "", "www-browser") + dpkgLine("lynx", "", "www-browser"), "falkon"),
                IsEmpty());
    EXPECT_THAT(needing(dpkgLine("user", "other (>= 1)") + dpkgLine("falkon", "", "other (= 1)"), "falkon"),
                ElementsAre("user"));
}

TEST(DpkgStatus, itsOwnNeedsAreNoHindrance) {
    EXPECT_THAT(needing(dpkgLine("falkon", "www-browser", "www-browser"), "falkon"), IsEmpty());
}

TEST(DpkgStatus, dependencyThatIsBrokenAlreadyIsNoHindrance) {
    EXPECT_THAT(needing(dpkgLine("user", "gone | lost") + dpkgLine("falkon"), "falkon"), IsEmpty());
}

TEST(DpkgStatus, readsArchitecturesInDependencies) {
    EXPECT_THAT(needing(dpkgLine("user", "falkon:any (>= 1)") + dpkgLine("falkon"), "falkon"), ElementsAre("user"));
    EXPECT_THAT(needing(dpkgLine("user", "falkon:any") + dpkgLine("falkon"), "falkon"), ElementsAre("user"));
}

TEST(DpkgStatus, readsOwnersOfPaths) {
    EXPECT_THAT(
        parseDpkgOwners("falkon: /usr/share/applications/org.kde.falkon.desktop\n"
                        "libx:amd64: /usr/share/applications/x.desktop\n"
                        "one, two:i386: /usr/share/applications/both.desktop\n"
                        "diversion by one from: /usr/share/applications/a.desktop\n"
                        "Umleitung durch one zu: /usr/share/applications/b.desktop\n"
                        "dpkg-query: no path found matching pattern /x\n"
                        "local: no/slash\n\n"
                        "vim: /usr/share/applications/with: colon.desktop\n"),
        UnorderedElementsAre(Pair("/usr/share/applications/org.kde.falkon.desktop", UnorderedElementsAre("falkon")),
                             Pair("/usr/share/applications/x.desktop", UnorderedElementsAre("libx")),
                             Pair("/usr/share/applications/both.desktop", UnorderedElementsAre("one", "two")),
                             Pair("/usr/share/applications/with: colon.desktop", UnorderedElementsAre("vim"))));
}

TEST(DpkgStatus, readsWhatAptWouldDo) {
    const AptChanges changes = parseAptChanges(
        "NOTE: This is only a simulation!\n      apt-get needs root privileges\n"
        "The following packages will be REMOVED:\n  falkon plugins\n"
        "Remv plugins [22.12-1]\nRemv falkon [22.12-1] [other ]\nRemv lib:i386 [1]\n"
        "Purg settings [1]\nInst new:amd64 (1.0)\nConf new (1.0)\n");
    EXPECT_THAT(changes.removed, ElementsAre("plugins", "falkon", "lib", "settings"));
    EXPECT_THAT(changes.installed, ElementsAre("new"));
    EXPECT_THAT(parseAptChanges("").removed, IsEmpty());
}

TEST(DpkgStatus, knowsNamesOfPackages) {
    for (const std::string& name :
         {std::string("ab"), std::string("0ad"), std::string("g++"), std::string("python3.11"), std::string(255, 'x')})
        EXPECT_TRUE(isPackageName(name)) << name;
    for (const std::string& name : {std::string(), std::string("a"), std::string(256, 'x'), std::string("-o"),
                                    std::string("+a"), std::string("Ab"), std::string("a_b"), std::string("a b"),
                                    std::string("a:i386"), std::string("a/s"), std::string("a;b"), std::string("ab\n")})
        EXPECT_FALSE(isPackageName(name)) << name;
}

}  // namespace zelk
