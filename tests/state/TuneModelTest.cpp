// SPDX-License-Identifier: MIT
#include "state/TuneModel.h"

#include <gmock/gmock.h>

#include <QLocale>
#include <QObject>

#include "fakes/TuneHome.h"
#include "state/AppModelFixture.h"

namespace zelk {
namespace {

using fakes::agentList;
using fakes::ownAgents;
using fakes::systemAgents;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using Strings = std::vector<std::string>;

/// How often a signal was emitted since this was made.
class Times {
public:
    Times(TuneModel& tune, void (TuneModel::*signal)()) {
        QObject::connect(&tune, signal, &context_, [this] { ++times_; });
    }
    int size() const { return times_; }

private:
    QObject context_;
    int times_ = 0;
};

class Tune : public AppModelFixture {
protected:
    Tune() { fakes::fillWithAgents(machine); }

    TuneModel& tune() { return model().tune(); }
    static Strings labelsOf(const std::vector<Agent>& agents) {
        Strings labels;
        for (const Agent& agent : agents) labels.push_back(agent.label);
        return labels;
    }
    Strings labels() { return labelsOf(tune().agents()); }
    Strings found(const char* text) {
        tune().setSearch(QString::fromUtf8(text));
        return labelsOf(tune().filteredAgents());
    }
    void add(const std::string& name, const std::string& label) {
        machine.files.addFile(ownAgents + "/" + name + ".plist", agentList(label));
    }
    void answer(int status, const std::string& output) {
        machine.processes.outcome = [=](const auto&) { return ChildOutcome{std::nullopt, status, output}; };
    }
    void finishCommand() {
        runUntil([this] { return !tune().busy(); });
    }
    /// What the programs were given, in one text per call.
    Strings commands() const {
        Strings lines;
        for (const auto& call : machine.processes.calls()) {
            lines.push_back(call.executable);
            for (const std::string& argument : call.arguments) lines.back() += " " + argument;
        }
        return lines;
    }
    TuneModel::Pressure pressureOf(std::uint64_t used, std::uint64_t total) {
        machine.vitals.memoryStats = {total, used, 0, 0, 0};
        tune().refreshMemory();
        return tune().pressure();
    }
};

using Pressure = TuneModel::Pressure;

TEST_F(Tune, readsMemoryWhenItIsMadeAndNothingElse) {
    EXPECT_EQ(tune().memory(), machine.vitals.memoryStats);
    EXPECT_THAT(tune().agents(), IsEmpty());
    EXPECT_THAT(tune().selected(), IsEmpty());
    EXPECT_EQ(tune().search(), QString());
    EXPECT_FALSE(tune().busy());
    EXPECT_EQ(tune().lastOutput(), std::nullopt);
    EXPECT_FALSE(tune().hasScanned());
    EXPECT_THAT(machine.files.pathsOf("list"), IsEmpty());
}

TEST_F(Tune, scanListsItemsByLabelInAnyCase) {
    const Times scanned(tune(), &TuneModel::hasScannedChanged);
    const Times listed(tune(), &TuneModel::agentsChanged);
    tune().scan();
    EXPECT_TRUE(tune().hasScanned());
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
    EXPECT_EQ(tune().agents().front().program, "/opt/backup");
    EXPECT_EQ(scanned.size(), 1);
    EXPECT_EQ(listed.size(), 1);
}

TEST_F(Tune, sortsByTheRulesOfTheLanguage) {
    for (const char* label : {"zebra", "Äpfel", "apple", "Zebra 2", "ångström"}) add(label, label);
    tune().scan();
    EXPECT_THAT(labels(),
                ElementsAre("ångström", "Äpfel", "apple", "Backup", "cloud", "Daemon", "Sync", "zebra", "Zebra 2"));
}

TEST_F(Tune, sameLabelKeepsBothItemsInOrderOfFolders) {
    add("x", "Daemon");
    add("w", "daemon");
    tune().scan();
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "daemon", "Daemon", "Daemon", "Sync"));
    EXPECT_EQ(tune().agents()[3].path, ownAgents + "/x.plist");
    EXPECT_EQ(tune().agents()[4].path, systemAgents + "/d.plist");
}

TEST_F(Tune, secondScanReadsMemoryOnly) {
    tune().scan();
    const Times scanned(tune(), &TuneModel::hasScannedChanged);
    machine.files.forgetCalls();
    add("new", "New");
    machine.vitals.memoryStats.used = 1;
    tune().scan();
    EXPECT_EQ(tune().memory().used, 1U);
    EXPECT_THAT(machine.files.calls(), IsEmpty());
    EXPECT_THAT(labels(), SizeIs(4));
    EXPECT_EQ(scanned.size(), 0);
}

TEST_F(Tune, scanThatFoundNothingReadsTheFoldersAgain) {
    machine.files.failing = [](const auto& call) { return call.operation == "list"; };
    tune().scan();
    EXPECT_THAT(labels(), IsEmpty());
    machine.files.failing = nullptr;
    tune().scan();
    EXPECT_THAT(labels(), SizeIs(4));
}

TEST_F(Tune, searchFindsLabelOrPathInAnyCase) {
    tune().scan();
    EXPECT_THAT(found(""), SizeIs(4));
    EXPECT_THAT(found("CLOUD"), ElementsAre("cloud"));
    EXPECT_THAT(found("ack"), ElementsAre("Backup"));
    EXPECT_THAT(found("library/LAUNCH"), SizeIs(4));
    EXPECT_THAT(found("/home/ME/"), ElementsAre("Backup", "cloud", "Sync"));
    EXPECT_THAT(found("nobody"), IsEmpty());
    EXPECT_THAT(labels(), SizeIs(4));
    // A program is not searched.
    EXPECT_THAT(found("/opt"), IsEmpty());
}

TEST_F(Tune, searchKnowsLettersOfTheLanguage) {
    add("x", "ÜBER");
    add("y", "STRASSE u\xcc\x88");
    tune().scan();
    EXPECT_THAT(found("über"), ElementsAre("ÜBER"));
    EXPECT_THAT(found("SSE ü"), ElementsAre("STRASSE u\xcc\x88"));
    EXPECT_THAT(found("uber"), IsEmpty());
    // The text that is searched for may be spelled in either way too.
    EXPECT_THAT(found("u\u0308ber"), ElementsAre("ÜBER"));
    EXPECT_THAT(found("sse u\u0308"), ElementsAre("STRASSE u\xcc\x88"));
}

TEST_F(Tune, searchKnowsBothRulesOfCaseInTurkish) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Turkish, QLocale::Turkey));
    add("x", "İSTANBUL");
    add("y", "FILES");
    tune().scan();
    EXPECT_THAT(found("istanbul"), ElementsAre("İSTANBUL")) << "by the rule of Turkish alone";
    EXPECT_THAT(found("files"), ElementsAre("FILES")) << "by the rule of all other languages";
    QLocale::setDefault(before);
}

TEST_F(Tune, searchTellsOfChangesOnly) {
    const Times changed(tune(), &TuneModel::searchChanged);
    tune().setSearch(QStringLiteral("a"));
    tune().setSearch(QStringLiteral("a"));
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(Tune, allTicksItemsThatTheSearchHides) {
    tune().scan();
    found("cloud");
    tune().selectAll();
    EXPECT_THAT(tune().selected(), ElementsAre(ownAgents + "/b.plist", ownAgents + "/c.plist", ownAgents + "/s.plist"));
    EXPECT_EQ(tune().selectedCount(), 3U);
    tune().selectNone();
    EXPECT_THAT(tune().selected(), IsEmpty());
    EXPECT_EQ(tune().selectedCount(), 0U);
}

TEST_F(Tune, toggleTicksOneItem) {
    tune().scan();
    const Times changed(tune(), &TuneModel::selectionChanged);
    tune().toggle(ownAgents + "/c.plist");
    EXPECT_THAT(tune().selected(), ElementsAre(ownAgents + "/c.plist"));
    tune().toggle(ownAgents + "/s.plist");
    EXPECT_EQ(tune().selectedCount(), 2U);
    tune().toggle(ownAgents + "/c.plist");
    EXPECT_THAT(tune().selected(), ElementsAre(ownAgents + "/s.plist"));
    EXPECT_EQ(changed.size(), 3);
}

TEST_F(Tune, itemOfTheSystemCannotBeTicked) {
    tune().scan();
    tune().toggle(systemAgents + "/d.plist");
    tune().toggle("/nowhere");
    EXPECT_THAT(tune().selected(), IsEmpty());
    tune().selectAll();
    tune().removeSelected();
    EXPECT_THAT(labels(), ElementsAre("Daemon"));
    EXPECT_THAT(machine.trash.trashed(), testing::Not(Contains(systemAgents + "/d.plist")));
}

TEST_F(Tune, removalMovesTickedItemsToTheTrashInOrder) {
    tune().scan();
    tune().toggle(ownAgents + "/s.plist");
    tune().toggle(ownAgents + "/b.plist");
    tune().removeSelected();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(ownAgents + "/b.plist", ownAgents + "/s.plist"));
    EXPECT_THAT(labels(), ElementsAre("cloud", "Daemon"));
    EXPECT_THAT(tune().selected(), IsEmpty());
    // The file is moved and that is all.
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
    EXPECT_TRUE(machine.files.identity("/opt/backup"));
}

TEST_F(Tune, removalWithoutTicksDoesNothing) {
    tune().scan();
    const Times listed(tune(), &TuneModel::agentsChanged);
    tune().removeSelected();
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_EQ(listed.size(), 0);
    EXPECT_EQ(model().removalUndo().moved(), 0U);
}

TEST_F(Tune, itemThatCouldNotBeMovedLeavesTheListAllTheSame) {
    tune().scan();
    tune().selectAll();
    machine.files.failing = [](const auto& call) { return call.path == ownAgents + "/c.plist"; };
    tune().removeSelected();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(ownAgents + "/b.plist", ownAgents + "/s.plist"));
    EXPECT_THAT(labels(), ElementsAre("Daemon"));
    machine.files.failing = nullptr;
    tune().scan();
    EXPECT_THAT(labels(), ElementsAre("Daemon"));
    EXPECT_TRUE(machine.files.identity(ownAgents + "/c.plist"));
}

TEST_F(Tune, undoPutsWhatWasMovedBackIntoTheList) {
    tune().scan();
    tune().selectAll();
    machine.files.failing = [](const auto& call) { return call.path == ownAgents + "/c.plist"; };
    tune().removeSelected();
    machine.files.failing = nullptr;
    EXPECT_EQ(model().removalUndo().source(), RemovalUndo::Source::backgroundItems);
    EXPECT_EQ(model().removalUndo().moved(), 2U);
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(labels(), ElementsAre("Backup", "Daemon", "Sync"));
    EXPECT_EQ(tune().agents().front().program, "/opt/backup");
    EXPECT_THAT(tune().selected(), IsEmpty());
    EXPECT_TRUE(machine.files.identity(ownAgents + "/b.plist"));
    // Nothing of it concerns a survey.
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(Tune, scanDuringUndoListsNothingTwice) {
    machine.locations.itemFolders.pop_back();
    tune().scan();
    tune().selectAll();
    tune().removeSelected();
    ASSERT_THAT(labels(), IsEmpty());
    // The files are back, but the model has not been told yet.
    model().undoLastRemoval();
    ASSERT_THAT(machine.trash.restored(), SizeIs(3));
    tune().scan();
    EXPECT_THAT(labels(), SizeIs(3));
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Sync"));
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(Tune, surveyBegunSinceTheRemovalSpoilsNoUndo) {
    tune().scan();
    tune().selectAll();
    tune().removeSelected();
    survey();
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
    EXPECT_EQ(model().scanPhase(), Phase::finished) << "nothing of it concerns a survey";
}

TEST_F(Tune, surveyBegunDuringTheUndoDoesNotSpoilIt) {
    tune().scan();
    tune().selectAll();
    tune().removeSelected();
    machine.tasks.hold();
    model().undoLastRemoval();
    model().startScan();
    machine.tasks.runNext();
    machine.tasks.release();
    runUntil([this] { return !model().removalUndo().underWay() && model().scanPhase() == Phase::finished; });
    runWhatIsThere();
    EXPECT_THAT(labels(), ElementsAre("Backup", "cloud", "Daemon", "Sync"));
    EXPECT_EQ(model().history().size(), 1U) << "no other survey follows";
    EXPECT_EQ(model().scanPhase(), Phase::finished);
}

TEST_F(Tune, selectionOutlivesAnotherSearch) {
    tune().scan();
    tune().toggle(ownAgents + "/c.plist");
    found("nobody");
    EXPECT_EQ(tune().selectedCount(), 1U);
    tune().removeSelected();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(ownAgents + "/c.plist"));
}

TEST_F(Tune, freeingMemoryShowsItsAnswerAndReadsMemory) {
    answer(0, "freed\n");
    machine.tasks.hold();
    tune().freeMemory();
    EXPECT_TRUE(tune().busy());
    EXPECT_EQ(tune().lastOutput(), std::nullopt);
    machine.vitals.memoryStats.used = 5;
    machine.tasks.release();
    finishCommand();
    EXPECT_EQ(tune().lastOutput(), "freed\n");
    EXPECT_EQ(tune().memory().used, 5U);
    EXPECT_THAT(commands(), ElementsAre(HasSubstr("/usr/sbin/purge")));
}

TEST_F(Tune, flushingTheCacheDoesNotReadMemory) {
    answer(0, "");
    const std::uint64_t used = tune().memory().used;
    tune().flushDNS();
    machine.vitals.memoryStats.used = 5;
    EXPECT_TRUE(tune().busy());
    finishCommand();
    EXPECT_EQ(tune().lastOutput(), "done");
    EXPECT_EQ(tune().memory().used, used);
    EXPECT_THAT(commands(),
                ElementsAre(HasSubstr("/usr/bin/dscacheutil -flushcache; /usr/bin/killall -HUP mDNSResponder")));
}

TEST_F(Tune, refusedCommandSaysSo) {
    answer(1, "User canceled.");
    tune().freeMemory();
    finishCommand();
    EXPECT_EQ(tune().lastOutput(), "cancelled");
    machine.processes.outcome = [](const auto&) { return ChildOutcome{"no such program", 0, {}}; };
    tune().flushDNS();
    finishCommand();
    EXPECT_EQ(tune().lastOutput(), "failed: no such program");
}

TEST_F(Tune, tellsOfEveryAnswerEvenIfItIsTheSame) {
    const Times told(tune(), &TuneModel::lastOutputChanged);
    for (int times = 1; times <= 2; ++times) {
        tune().flushDNS();
        EXPECT_EQ(told.size(), times - 1);
        finishCommand();
        EXPECT_EQ(told.size(), times);
        EXPECT_EQ(tune().lastOutput(), "done");
    }
    answer(1, "User canceled.");
    tune().flushDNS();
    finishCommand();
    EXPECT_EQ(told.size(), 3);
}

TEST_F(Tune, busyTakesNoOtherCommand) {
    machine.tasks.hold();
    tune().freeMemory();
    tune().freeMemory();
    tune().flushDNS();
    machine.tasks.release();
    finishCommand();
    EXPECT_THAT(commands(), SizeIs(1));
}

TEST_F(Tune, commandMayOutliveTheModel) {
    machine.tasks.hold();
    tune().freeMemory();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_THAT(commands(), SizeIs(1));
}

TEST_F(Tune, refreshReadsMemory) {
    const Times changed(tune(), &TuneModel::memoryChanged);
    tune().refreshMemory();
    EXPECT_EQ(changed.size(), 0);
    machine.vitals.memoryStats.used = 7;
    tune().refreshMemory();
    EXPECT_EQ(tune().memory().used, 7U);
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(Tune, pressureIsTheShareThatIsUsed) {
    EXPECT_EQ(pressureOf(0, 1'000), Pressure::normal);
    EXPECT_EQ(pressureOf(699, 1'000), Pressure::normal);
    EXPECT_EQ(pressureOf(700, 1'000), Pressure::elevated);
    EXPECT_EQ(pressureOf(899, 1'000), Pressure::elevated);
    EXPECT_EQ(pressureOf(900, 1'000), Pressure::high);
    EXPECT_EQ(pressureOf(2'000, 1'000), Pressure::high);
    EXPECT_EQ(pressureOf(7, 10), Pressure::elevated);
    EXPECT_EQ(pressureOf(9, 10), Pressure::high);
    EXPECT_EQ(pressureOf(1, 1), Pressure::high);
    EXPECT_EQ(pressureOf(5, 0), Pressure::normal);
}

}  // namespace
}  // namespace zelk
