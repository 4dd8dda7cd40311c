// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "platform/DesktopEntry.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

DesktopEntry parsed(const std::string& lines, const std::vector<std::string>& locales = {}) {
    const auto entry = parseDesktopEntry("[Desktop Entry]\n" + lines, locales);
    EXPECT_TRUE(entry);
    return entry.value_or(DesktopEntry());
}

TEST(DesktopEntryText, parsesApplication) {
    const DesktopEntry entry = parsed(
        "Type=Application\nName=Maps\nComment=Where things are\nExec=gnome-maps --gapplication-service %U\n"
        "TryExec=gnome-maps\nIcon=maps\nNoDisplay=false\n");
    EXPECT_TRUE(entry.isApplication);
    EXPECT_EQ(entry.name, "Maps");
    EXPECT_THAT(entry.command, ElementsAre("gnome-maps", "--gapplication-service", "%U"));
    EXPECT_EQ(entry.tryExec, "gnome-maps");
    EXPECT_FALSE(entry.hidden);
    EXPECT_FALSE(entry.noDisplay);
}

TEST(DesktopEntryText, readsIconAndWhereTheApplicationComesFrom) {
    const DesktopEntry entry =
        parsed("Icon=my\\sicon\nX-Flatpak=org.sample.Orrery\nX-AppImage-Name=Sonata\nIcon[de]=anders\n");
    EXPECT_EQ(entry.icon, "my icon");
    EXPECT_EQ(entry.flatpak, "org.sample.Orrery");
    EXPECT_EQ(entry.appImage, "Sonata");
    EXPECT_EQ(parsed("Name=x\n").icon + parsed("Name=x\n").flatpak + parsed("Name=x\n").appImage, "");
}

TEST(DesktopEntryText, rejectsTextBeforeItsGroup) {
    EXPECT_FALSE(parseDesktopEntry("", {}));
    EXPECT_FALSE(parseDesktopEntry("\n# only a comment\n", {}));
    EXPECT_FALSE(parseDesktopEntry("Name=Maps\n[Desktop Entry]\n", {}));
    EXPECT_FALSE(parseDesktopEntry("[Other]\nName=Maps\n[Desktop Entry]\nName=Maps\n", {}));
    EXPECT_TRUE(parseDesktopEntry("# Maps\n\n[Desktop Entry]", {}));
}

TEST(DesktopEntryText, stopsAtTheNextGroup) {
    EXPECT_EQ(parsed("Name=Maps\n[Desktop Action new]\nName=New window\n[Desktop Entry]\nName=Again\n").name, "Maps");
}

TEST(DesktopEntryText, ignoresBlanksAndCarriageReturns) {
    const DesktopEntry entry = parsed("  Name = Maps \r\nType\t=\tApplication\r\n# Name=No\nno equals sign\n=no key\n");
    EXPECT_EQ(entry.name, "Maps");
    EXPECT_TRUE(entry.isApplication);
}

TEST(DesktopEntryText, matchesWholeKeysOnly) {
    const DesktopEntry entry = parsed("name=Maps\nNames=Maps\nName-X=Maps\nGenericName=Maps\nType=application\n");
    EXPECT_EQ(entry.name, "");
    EXPECT_FALSE(entry.isApplication);
}

TEST(DesktopEntryText, linksAndDirectoriesAreNotApplications) {
    EXPECT_FALSE(parsed("Type=Link\nName=Home\nURL=https://example.org\n").isApplication);
    EXPECT_FALSE(parsed("Name=Maps\n").isApplication);
}

TEST(DesktopEntryText, lastDuplicateKeyWins) {
    EXPECT_EQ(parsed("Name=A\nName=B\n").name, "B");
    EXPECT_TRUE(parsed("Hidden=false\nHidden=true\n").hidden);
}

TEST(DesktopEntryText, parsesHiddenAndNoDisplay) {
    EXPECT_TRUE(parsed("Hidden=true\n").hidden);
    EXPECT_TRUE(parsed("NoDisplay=true\n").noDisplay);
    EXPECT_TRUE(parsed("NoDisplay=1\n").noDisplay);
    EXPECT_FALSE(parsed("NoDisplay=True\n").noDisplay);
}

TEST(DesktopEntryText, parsesSwitchOfAutostart) {
    EXPECT_TRUE(parsed("X-GNOME-Autostart-enabled=false\n").staysOff);
    EXPECT_TRUE(parsed("X-GNOME-Autostart-enabled=0\n").staysOff);
    for (const char* on : {"X-GNOME-Autostart-enabled=true\n", "X-GNOME-Autostart-enabled=\n",
                           "X-GNOME-Autostart-enabled=False\n", "X-GNOME-Autostart-enabled[de]=false\n", "Name=Maps\n"})
        EXPECT_FALSE(parsed(on).staysOff) << on;
}

TEST(DesktopEntryText, picksNameInBestLanguage) {
    const std::string names = "Name[de]=Karten\nName=Maps\nName[de_AT]=Plan\nName[fr]=Cartes\n";
    EXPECT_EQ(parsed(names, {"de_AT", "de"}).name, "Plan");
    EXPECT_EQ(parsed(names, {"de_CH", "de"}).name, "Karten");
    EXPECT_EQ(parsed(names, {"nl"}).name, "Maps");
    EXPECT_EQ(parsed(names).name, "Maps");
}

TEST(DesktopEntryText, acceptsLocalizedNameOnly) {
    EXPECT_EQ(parsed("Name[fr]=Cartes\n", {"fr"}).name, "Cartes");
    EXPECT_EQ(parsed("Name[fr]=Cartes\n", {"de"}).name, "");
}

TEST(DesktopEntryText, ignoresNameThatIsNotUtf8) {
    EXPECT_EQ(parsed("Name=Maps\nName[de]=Stra\xdf"
                     "e\n",
                     {"de"})
                  .name,
              "Maps");
    EXPECT_EQ(parsed("Name=\xff\n").name, "");
}

TEST(DesktopEntryText, decodesEscapes) {
    EXPECT_EQ(parsed(R"(Name=\sa\tb\\c\xd\)"
                     "\n")
                  .name,
              " a\tb\\c\\xd\\");
}

TEST(DesktopEntryText, splitsAndUnquotesCommand) {
    EXPECT_THAT(parsed(R"(Exec="/opt/My App/run" --name="a b"  "" %f)"
                       "\n")
                    .command,
                ElementsAre("/opt/My App/run", "--name=a b", "", "%f"));
    // Two backslashes in the file mean one, which then quotes the quotation mark.
    EXPECT_THAT(parsed(R"(Exec="a\\"b" c)"
                       "\n")
                    .command,
                ElementsAre("a\"b", "c"));
    EXPECT_THAT(parsed("Exec=\"open to the end\n").command, ElementsAre("open to the end"));
    EXPECT_THAT(parsed("Exec=\n").command, IsEmpty());
}

TEST(DesktopEntryText, ordersLocalesBySpecificity) {
    EXPECT_THAT(localesOf("de_AT.UTF-8@euro"), ElementsAre("de_AT@euro", "de_AT", "de@euro", "de"));
    EXPECT_THAT(localesOf("de_AT.UTF-8"), ElementsAre("de_AT", "de"));
    EXPECT_THAT(localesOf("sr@latin"), ElementsAre("sr@latin", "sr"));
    EXPECT_THAT(localesOf("de"), ElementsAre("de"));
    for (const char* nobody : {"", "C", "POSIX", "C.UTF-8", "@euro", ".UTF-8", "_", "_AT@euro"})
        EXPECT_THAT(localesOf(nobody), IsEmpty());
}

}  // namespace
}  // namespace zelk
