// SPDX-License-Identifier: MIT
// What is installed fits together: the programs, and the files in which the desktop, polkit and D-Bus know them.
#include <gmock/gmock.h>

#include <QRegularExpression>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "HouseRules.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk::house {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::UnorderedElementsAre;

const std::string applicationId = "io.github.zelk.Zelk";

std::string packagingFile(const std::string& name) {
    return fakes::fileContent(ZELK_SOURCE_DIR "/packaging/" + name);
}

/// What the group of `pattern` matches, wherever it does.
std::vector<std::string> allOf(const std::string& text, const std::string& pattern) {
    const QRegularExpression expression(QString::fromStdString(pattern), QRegularExpression::MultilineOption);
    const QString whole = QString::fromStdString(text);
    std::vector<std::string> found;
    for (auto at = expression.globalMatch(whole); at.hasNext();) found.push_back(at.next().captured(1).toStdString());
    return found;
}

/// Installs this build into a folder of its own.
class Installed : public testing::Test {
protected:
    void SetUp() override {
        const std::string command = "DESTDIR='" + place.path() +
                                    "' '" ZELK_CMAKE "' --install '" ZELK_BINARY_DIR "' >'" + place / "log" + "' 2>&1";
        ASSERT_EQ(std::system(command.c_str()), 0) << fakes::fileContent(place / "log");
    }

    std::set<std::string> files() const {
        std::set<std::string> paths;
        for (const auto& entry : fs::recursive_directory_iterator(place / "usr"))
            if (!entry.is_directory()) paths.insert("/" + entry.path().lexically_relative(place.path()).string());
        return paths;
    }

    std::string contentOf(const std::string& path) const { return fakes::fileContent(place.path() + path); }

    bool isProgram(const std::string& path) const {
        const std::string whole = place.path() + path;
        return fs::is_regular_file(whole) &&
               (fs::status(whole).permissions() & fs::perms::others_exec) != fs::perms::none;
    }

    zoo::TempFolder place;
};

TEST_F(Installed, hasTheProgramsAndAllThatTheDesktopLooksFor) {
    const std::string share = "/usr/share/";
    for (const std::string& path :
         {std::string("/usr/bin/zelk"), std::string("/usr/bin/zelk-survey"), std::string("/usr/libexec/zelk-admin"),
          share + "applications/" + applicationId + ".desktop", share + "dbus-1/services/" + applicationId + ".service",
          share + "icons/hicolor/scalable/apps/" + applicationId + ".svg",
          share + "icons/hicolor/symbolic/apps/" + applicationId + "-symbolic.svg",
          share + "metainfo/" + applicationId + ".metainfo.xml",
          share + "polkit-1/actions/" + applicationId + ".policy", share + "man/man1/zelk.1.gz",
          share + "man/man1/zelk-survey.1.gz", share + "man/man8/zelk-admin.8.gz", share + "doc/zelk/copyright",
          share + "doc/zelk/changelog.gz", share + "doc/zelk/changelog.Debian.gz",
          share + "zelk/translations/zelk_de.qm"})
        EXPECT_THAT(files(), Contains(path));
    EXPECT_EQ(std::ranges::count_if(files(), [](const std::string& path) { return path.find("/bin/") != path.npos; }),
              2);
}

TEST_F(Installed, everyPathThatIsNamedSomewhereLeadsToAProgram) {
    std::set<std::string> named;
    const auto collect = [&](const std::vector<std::string>& paths) {
        EXPECT_THAT(paths, Not(testing::IsEmpty()));
        named.insert(paths.begin(), paths.end());
    };
    collect(allOf(contentOf("/usr/share/polkit-1/actions/" + applicationId + ".policy"), "exec\\.path\">([^<]*)<"));
    collect(allOf(contentOf("/usr/share/dbus-1/services/" + applicationId + ".service"), "^Exec=(.*)$"));
    // Where the window looks for the program of root.
    collect(
        allOf(fakes::fileContent(ZELK_SOURCE_DIR "/src/system/PrivilegedCommands.cpp"), "adminHelper = \"([^\"]*)\""));
    EXPECT_THAT(named, UnorderedElementsAre("/usr/bin/zelk", "/usr/libexec/zelk-admin"));
    for (const std::string& path : named) EXPECT_TRUE(isProgram(path)) << path;

    const std::string entry = contentOf("/usr/share/applications/" + applicationId + ".desktop");
    EXPECT_THAT(allOf(entry, "^(?:Try)?Exec=(.*)$"), ElementsAre("zelk", "zelk"));
    for (const std::string& name :
         allOf(packagingFile("linux/" + applicationId + ".metainfo.xml"), "<binary>(.*)</binary>"))
        EXPECT_TRUE(isProgram("/usr/bin/" + name)) << name;
}

TEST(Package, isCalledByOneNameEverywhere) {
    const std::string metainfo = packagingFile("linux/" + applicationId + ".metainfo.xml");
    const std::string entry = packagingFile("linux/" + applicationId + ".desktop");
    EXPECT_THAT(allOf(metainfo, "<id>(.*)</id>"), ElementsAre(applicationId));
    EXPECT_THAT(allOf(metainfo, "<launchable type=\"desktop-id\">(.*)</launchable>"),
                ElementsAre(applicationId + ".desktop"));
    EXPECT_THAT(allOf(metainfo, "<dbus type=\"session\">(.*)</dbus>"), ElementsAre(applicationId));
    EXPECT_THAT(allOf(metainfo, "<icon type=\"stock\">(.*)</icon>"), ElementsAre(applicationId));
    EXPECT_THAT(allOf(entry, "^Icon=(.*)$"), ElementsAre(applicationId));
    EXPECT_TRUE(fs::exists(ZELK_SOURCE_DIR "/packaging/icons/" + applicationId + ".svg"));
    EXPECT_TRUE(fs::exists(ZELK_SOURCE_DIR "/packaging/icons/" + applicationId + "-symbolic.svg"));
}

TEST(Package, newestReleaseIsThatOfTheProgram) {
    const auto releases =
        allOf(packagingFile("linux/" + applicationId + ".metainfo.xml"), "<release version=\"([^\"]*)\"");
    ASSERT_THAT(releases, Not(testing::IsEmpty()));
    EXPECT_EQ(releases[0], ZELK_VERSION);
}

TEST(Package, everyPictureOfItIsOneOfTheDocumentation) {
    const auto pictures = allOf(packagingFile("linux/" + applicationId + ".metainfo.xml"),
                                "<image [^>]*>https://[^<]*/images/([^</]*)</image>");
    EXPECT_GE(pictures.size(), 3U);
    for (const std::string& picture : pictures)
        EXPECT_TRUE(fs::exists(ZELK_SOURCE_DIR "/docs/images/" + picture)) << picture;
}

/// No tool can see what a view imports.
TEST(Package, dependsOnTheModuleOfEveryImport) {
    std::set<std::string> imported;
    for (const SourceFile& file : readSources(ZELK_SOURCE_DIR)) {
        if (!file.path.starts_with("src/") || !file.path.ends_with(".qml")) continue;
        for (const std::string& name : allOf(file.text, "^import (Qt[A-Za-z.]*)")) {
            std::string package = "qml6-module-";
            for (const char c : name) package.push_back(c == '.' ? '-' : static_cast<char>(std::tolower(c)));
            imported.insert(package);
        }
    }
    EXPECT_THAT(imported, Contains("qml6-module-qtquick"));
    const auto declared = allOf(fakes::fileContent(ZELK_SOURCE_DIR "/cmake/ZelkDebian.cmake"), "(qml6-module-[a-z-]*)");
    for (const std::string& package : imported) EXPECT_THAT(declared, Contains(package));
    // And on no other than what is known to be needed where one builds and runs it.
    const std::string known = fakes::fileContent(ZELK_SOURCE_DIR "/scripts/packages.txt");
    for (const std::string& package : declared) EXPECT_THAT(known, testing::HasSubstr(" " + package + " ")) << package;
}

}  // namespace
}  // namespace zelk::house
