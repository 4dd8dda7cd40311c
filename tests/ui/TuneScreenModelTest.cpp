// SPDX-License-Identifier: MIT
#include "ui/screens/tune/TuneScreenModel.h"

#include <gmock/gmock.h>

#include <QSignalSpy>

#include "TextsOf.h"
#include "fakes/TuneHome.h"
#include "state/AppModelFixture.h"
#include "ui/theme/SymbolItem.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

class TuneScreen : public AppModelFixture {
protected:
    TuneScreen() { fakes::fillWithAgents(machine); }

    TuneScreenModel& screen() {
        if (!screen_) screen_ = std::make_unique<TuneScreenModel>(model());
        return *screen_;
    }
    QVariant cell(int row, const char* role) {
        AgentRows& rows = *screen().rows();
        return rows.data(rows.index(row), rows.roleNames().key(role));
    }
    Strings column(const char* role) {
        Strings texts;
        for (int row = 0; row < screen().rows()->rowCount(); ++row)
            texts.push_back(cell(row, role).toString().toStdString());
        return texts;
    }
    std::string outputOf(const std::string& answer) {
        machine.processes.outcome = [=](const auto&) { return ChildOutcome{std::nullopt, 0, answer}; };
        screen().flushDNS();
        runUntil([this] { return !screen().busy(); });
        return screen().output().toStdString();
    }

private:
    std::unique_ptr<TuneScreenModel> screen_;
};

TEST_F(TuneScreen, exposesItsTexts) {
    const TextsOf mac(macOS);
    EXPECT_EQ(screen().screen(), Screen::tune);
    EXPECT_EQ(screen().title(), QStringLiteral("Tune"));
    EXPECT_EQ(screen().subtitle().toStdString(),
              "Check memory pressure, free up RAM, flush caches, and trim startup items.");
    EXPECT_EQ(screen().scanLabel(), QStringLiteral("Check this Mac"));
    EXPECT_EQ(screen().scanningLabel(), QStringLiteral("Scanning…"));
}

TEST_F(TuneScreen, namesTheComputerOnLinux) {
    const TextsOf here(desktopLinux);
    EXPECT_EQ(screen().scanLabel(), QStringLiteral("Check this computer"));
}

TEST_F(TuneScreen, showsResultsFromTheFirstScanOn) {
    EXPECT_TRUE(screen().idle());
    EXPECT_TRUE(screen().nothing());
    screen().scan();
    EXPECT_TRUE(screen().results());
    EXPECT_FALSE(screen().nothing());
    EXPECT_EQ(screen().heading(), QStringLiteral("Background items (4)"));
    EXPECT_THAT(column("label"), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
    // The model of the application keeps them.
    TuneScreenModel again(model());
    EXPECT_TRUE(again.results());
    EXPECT_EQ(again.rows()->rowCount(), 4);
}

TEST_F(TuneScreen, countsNoItems) {
    machine.locations.itemFolders.clear();
    screen().scan();
    EXPECT_TRUE(screen().results());
    EXPECT_TRUE(screen().nothing());
    EXPECT_EQ(screen().heading(), QStringLiteral("Background items (0)"));
}

TEST_F(TuneScreen, namesThePressure) {
    const std::pair<std::uint64_t, const char*> shares[] = {
        {69, "pressure: normal"}, {70, "pressure: elevated"}, {89, "pressure: elevated"}, {90, "pressure: high"}};
    for (const auto& [used, text] : shares) {
        machine.vitals.memoryStats = {100, used, 100 - used, 0, 0};
        screen().refreshMemory();
        EXPECT_EQ(screen().pressure().toStdString(), text);
        EXPECT_EQ(screen().used(), static_cast<double>(used));
        EXPECT_EQ(screen().free(), static_cast<double>(100 - used));
        EXPECT_EQ(screen().total(), 100);
    }
}

TEST_F(TuneScreen, describesRows) {
    screen().scan();
    EXPECT_EQ(column("place").front(), fakes::ownAgents + "/b.plist");
    EXPECT_THAT(column("removable"), ElementsAre("true", "true", "false", "true"));
    EXPECT_THAT(column("ticked"), ElementsAre("false", "false", "false", "false"));
    EXPECT_THAT(column("note"), ElementsAre("", "", "", ""));
    EXPECT_THAT(column("mark"), ElementsAre("", "", "system", ""));
    EXPECT_THAT(column("reason"), ElementsAre("", "", "Not removable: it belongs to the system.", ""));
    EXPECT_EQ(column("spoken")[0], "Backup, " + fakes::ownAgents + "/b.plist");
    EXPECT_EQ(column("spoken")[2], "Daemon, " + fakes::systemAgents + "/d.plist, system");
    EXPECT_FALSE(cell(0, "display").isValid());
}

TEST_F(TuneScreen, saysWhyAnOwnItemStays) {
    machine.locations.itemFolders = {
        {"/home/me/.config/autostart", BackgroundItemKind::autostartEntries, true, {"/etc/xdg/autostart"}}};
    machine.files.addFile("/home/me/.config/autostart/a.desktop", "[Desktop Entry]\nName=Applet\n");
    machine.files.addFile("/etc/xdg/autostart/a.desktop", "[Desktop Entry]\nName=Applet\n");
    screen().scan();
    EXPECT_THAT(column("removable"), ElementsAre("false"));
    EXPECT_THAT(column("note"), ElementsAre("in place of the system's own"));
    EXPECT_THAT(column("reason"), ElementsAre("Not removable: without it the system's own item would start."));
}

TEST_F(TuneScreen, saysThatWhatAnOwnItemHidesCannotBeSeen) {
    machine.locations.itemFolders = {{"/home/me/.config/autostart", BackgroundItemKind::autostartEntries, true}};
    machine.locations.itemFolders.front().hidesUnseen = true;
    machine.files.addFile("/home/me/.config/autostart/a.desktop", "[Desktop Entry]\nName=Applet\n");
    screen().scan();
    EXPECT_THAT(column("removable"), ElementsAre("false"));
    EXPECT_THAT(column("note"), ElementsAre("not removable here"));
    EXPECT_THAT(column("mark"), ElementsAre("")) << "it is not the system's";
    EXPECT_THAT(column("reason"), ElementsAre("Not removable here: what would start in its place can’t be seen."));
    EXPECT_THAT(column("spoken"), ElementsAre("Applet, /home/me/.config/autostart/a.desktop"));
}

TEST_F(TuneScreen, iconIsThatOfTheProgramOrElseOfTheList) {
    const IconPixels redPixel{1, {0xffff0000}};
    machine.workspace.icons["/opt/backup"] = redPixel;
    machine.workspace.icons[fakes::ownAgents + "/c.plist"] = redPixel;
    screen().scan();
    EXPECT_THAT(machine.workspace.iconReads, IsEmpty());
    EXPECT_EQ(cell(0, "icon").value<QImage>().pixel(0, 0), 0xffff0000);
    EXPECT_EQ(cell(1, "icon").value<QImage>().pixel(0, 0), 0xffff0000);
    EXPECT_EQ(cell(3, "icon").value<QImage>(), tintedSymbol(QStringLiteral("gearshape"), QColor(139, 134, 152), 44));
    const Strings read{"/opt/backup", fakes::ownAgents + "/c.plist", fakes::ownAgents + "/s.plist"};
    EXPECT_EQ(machine.workspace.iconReads, read);
    for (const int row : {0, 1, 3}) cell(row, "icon");
    EXPECT_EQ(machine.workspace.iconReads, read);
}

TEST_F(TuneScreen, searchEditsSingleRows) {
    screen().scan();
    const QSignalSpy removed(screen().rows(), &QAbstractItemModel::rowsRemoved);
    const QSignalSpy inserted(screen().rows(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy reset(screen().rows(), &QAbstractItemModel::modelReset);
    screen().setSearch(QStringLiteral("C"));
    EXPECT_THAT(column("label"), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
    EXPECT_TRUE(removed.isEmpty());
    screen().setSearch(QStringLiteral("CLOUD"));
    EXPECT_THAT(column("label"), ElementsAre("cloud"));
    EXPECT_EQ(removed.size(), 2);
    screen().setSearch({});
    EXPECT_EQ(inserted.size(), 2);
    EXPECT_TRUE(reset.isEmpty());
    screen().setSearch(QStringLiteral("nobody"));
    EXPECT_TRUE(screen().nothing());
    EXPECT_EQ(screen().heading(), QStringLiteral("Background items (4)"));
}

TEST_F(TuneScreen, ticksRows) {
    screen().scan();
    const QSignalSpy changed(screen().rows(), &QAbstractItemModel::dataChanged);
    screen().toggle(1);
    EXPECT_THAT(column("ticked"), ElementsAre("false", "true", "false", "false"));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(screen().removing());
    EXPECT_EQ(screen().removeLabel(), QStringLiteral("Remove 1 selected"));
    screen().toggle(2);
    screen().toggle(-1);
    screen().toggle(4);
    EXPECT_EQ(screen().removeLabel(), QStringLiteral("Remove 1 selected"));
    screen().chooseAll();
    EXPECT_THAT(column("ticked"), ElementsAre("true", "true", "false", "true"));
    EXPECT_EQ(screen().removeLabel(), QStringLiteral("Remove 3 selected"));
    screen().chooseNone();
    EXPECT_FALSE(screen().removing());
}

TEST_F(TuneScreen, removesTickedRows) {
    screen().scan();
    screen().toggle(1);
    screen().removeChosen();
    EXPECT_THAT(column("label"), ElementsAre("Backup", "Daemon", "Sync"));
    EXPECT_EQ(screen().heading(), QStringLiteral("Background items (3)"));
    EXPECT_FALSE(screen().removing());
    EXPECT_TRUE(screen().undoBar()->shown());
    EXPECT_EQ(screen().undoBar()->text(), QStringLiteral("Moved to the Trash"));
    screen().undoBar()->undo();
    runUntil([this] { return !model().removalUndo().underWay(); });
    runWhatIsThere();
    EXPECT_THAT(column("label"), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
    EXPECT_EQ(screen().undoBar()->text(), QStringLiteral("1 item was restored."));
}

TEST_F(TuneScreen, drawsAnyLineEndAsLineBreak) {
    EXPECT_TRUE(screen().output().isEmpty());
    EXPECT_EQ(outputOf("one\rtwo\r\nthree\nfour"), "one\ntwo\nthree\nfour");
}

TEST_F(TuneScreen, followsCommands) {
    machine.tasks.hold();
    screen().freeMemory();
    EXPECT_TRUE(screen().busy());
    machine.tasks.release();
    runUntil([this] { return !screen().busy(); });
    EXPECT_EQ(screen().output(), QStringLiteral("done"));
}

}  // namespace
}  // namespace zelk
