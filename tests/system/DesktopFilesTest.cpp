// SPDX-License-Identifier: MIT
#include "system/apps/DesktopFiles.h"

#include <gmock/gmock.h>

#include "fakes/AppsHome.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DesktopFilesTest : public testing::Test {
protected:
    void add(const std::string& name, const std::string& more = {}, const std::string& exec = "program") {
        machine.files.addFile("/entries/" + name, fakes::applicationEntry(name, exec, more));
    }
    std::vector<std::string> ids() {
        std::vector<std::string> ids;
        for (const DesktopFile& file : read()) ids.push_back(file.id);
        return ids;
    }
    std::vector<DesktopFile> read() { return readDesktopFiles(machine.files, "/entries", {"de"}); }

    fakes::FakePlatform machine;
};

}  // namespace

TEST_F(DesktopFilesTest, areReadWithTheirFoldersByPath) {
    add("b.desktop");
    add("a.desktop");
    add("kde/c.desktop");
    add("kde/deep/d.desktop");
    EXPECT_THAT(ids(), ElementsAre("a", "b", "kde-c", "kde-deep-d"));
}

TEST_F(DesktopFilesTest, goSoManyLevelsDeepAndNoFurther) {
    add("1/2/3/4/in.desktop");
    add("1/2/3/4/5/out.desktop");
    EXPECT_THAT(ids(), ElementsAre("1-2-3-4-in"));
}

TEST_F(DesktopFilesTest, skipWhatIsNoApplication) {
    add("hidden.desktop", "Hidden=true\n");
    add("link.desktop", "Type=Link\n");
    add("text.txt");
    add(".desktop");
    machine.files.addFile("/entries/broken.desktop", "no entry");
    machine.files.addFile("/entries/large.desktop",
                          fakes::applicationEntry("Large", "x", "#" + std::string(1 << 20, 'x')));
    EXPECT_THAT(ids(), IsEmpty());
}

TEST_F(DesktopFilesTest, haveNamesInTheLanguageOfTheUser) {
    add("a.desktop", "Name[de]=Werkzeug\n");
    EXPECT_EQ(read().at(0).entry.name, "Werkzeug");
}

TEST_F(DesktopFilesTest, namesTheProgramUnlessManyShareIt) {
    const auto named = [&](const std::string& exec) {
        add("a.desktop", "", exec);
        const DesktopFile file = read().at(0);
        return file.program() + "," + file.programName();
    };
    EXPECT_EQ(named("/usr/bin/vim %F"), "/usr/bin/vim,vim");
    EXPECT_EQ(named("vim"), "vim,vim");
    EXPECT_EQ(named("env A=b /opt/x/y"), "/opt/x/y,y");
    EXPECT_EQ(named("/usr/bin/python3 /x.py"), "/usr/bin/python3,");
    EXPECT_EQ(named(""), ",");
}

TEST_F(DesktopFilesTest, mainOneIsShownAndOfTheName) {
    add("a.desktop", "NoDisplay=true\n");
    add("b.desktop");
    add("c.desktop");
    const std::vector<DesktopFile> files = read();
    const std::vector<const DesktopFile*> all{&files[0], &files[1], &files[2]};
    EXPECT_EQ(mainEntry(all, "c"), &files[2]);
    EXPECT_EQ(mainEntry(all, "a"), &files[1]) << "a is not shown";
    EXPECT_EQ(mainEntry(all, "x"), &files[1]);
    EXPECT_EQ(mainEntry(all, "program"), &files[1]) << "the first that starts it";
    add("d.desktop", "", "/usr/bin/other");
    const std::vector<DesktopFile> more = read();
    EXPECT_EQ(mainEntry({&more[1], &more[3]}, "other"), &more[3]);
    EXPECT_EQ(mainEntry({&more[3], &more[1]}, "other"), &more[3]);
    EXPECT_EQ(mainEntry({&files[0]}, "a"), nullptr);
    EXPECT_EQ(mainEntry({}, "a"), nullptr);
}

TEST_F(DesktopFilesTest, othersAreShownAndNamedOnce) {
    for (const char* file : {"a", "b", "c", "d", "e"}) add(std::string(file) + ".desktop");
    std::vector<DesktopFile> files = read();
    const char* const names[] = {"Main", "Zoo", "Hidden", "Main", "Zoo"};
    std::vector<const DesktopFile*> all;
    for (std::size_t at = 0; at < files.size(); ++at) {
        files[at].entry.name = names[at];
        all.push_back(&files[at]);
    }
    files[2].entry.noDisplay = true;
    EXPECT_THAT(otherNames(all, files[0]), ElementsAre("Zoo"));
    EXPECT_THAT(otherNames({&files[0]}, files[0]), IsEmpty());
}

TEST(NameClaims, areSharedByTwoOwnersAndNotByOneTwice) {
    NameClaims claims;
    claims.claim("one", "a");
    claims.claim("one", "a");
    claims.claim("two", "a");
    claims.claim("two", "b");
    claims.claim("", "a");
    claims.claim("", "b");
    EXPECT_FALSE(claims.isShared("one"));
    EXPECT_TRUE(claims.isShared("two"));
    EXPECT_FALSE(claims.isShared("three"));
    EXPECT_FALSE(claims.isShared(""));
}

}  // namespace zelk
