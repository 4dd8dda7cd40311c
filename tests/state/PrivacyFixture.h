// SPDX-License-Identifier: MIT
// The model of what browsers left behind, on a Mac and on Linux.
#pragma once

#include <QObject>
#include <string>
#include <vector>

#include "fakes/PrivacyHome.h"
#include "state/AppModelFixture.h"
#include "state/PrivacyModel.h"

namespace zelk {

/// How often a signal was emitted since this was made.
class Emissions {
public:
    Emissions(PrivacyModel& privacy, void (PrivacyModel::*signal)()) {
        QObject::connect(&privacy, signal, &context_, [this] { ++count_; });
    }
    int count() const { return count_; }

private:
    QObject context_;
    int count_ = 0;
};

class Privacy : public AppModelFixture {
protected:
    PrivacyModel& privacy() { return model().privacy(); }
    void scan() {
        privacy().scanTraces();
        runUntil([this] { return !privacy().loading(); });
    }
    void clear() {
        privacy().clearSelected();
        runUntil([this] { return !model().removals().underWay(); });
        runWhatIsThere();
    }
    void clearAll() {
        for (const std::string& one : identities()) privacy().setSelected(one, true);
        clear();
    }
    /// Holds the tasks, so that the scan delivers its result after the undo.
    void undoWhileAScanWaits() {
        machine.tasks.hold();
        privacy().scanTraces();
        model().undoLastRemoval();
        machine.tasks.runAt(1);
        runUntil([this] { return !privacy().traces().empty(); });
    }
    void undo() {
        model().undoLastRemoval();
        runUntil([this] { return !model().removalUndo().underWay(); });
        runWhatIsThere();
    }
    std::vector<std::string> identities() {
        std::vector<std::string> all;
        for (const PrivacyModel::Trace& trace : privacy().traces()) all.push_back(trace.identity());
        return all;
    }
    PrivacyModel::Trace trace(const std::string& identity) {
        for (const PrivacyModel::Trace& one : privacy().traces())
            if (one.identity() == identity) return one;
        ADD_FAILURE() << "no " << identity;
        return {};
    }
    void selectOnly(const std::string& identity) {
        for (const std::string& one : identities()) privacy().setSelected(one, one == identity);
    }
    const std::string library = home + "/Library/";
};

class PrivacyOfMac : public Privacy {
protected:
    PrivacyOfMac() { fakes::fillWithTraces(machine); }
};

class PrivacyOfLinux : public Privacy {
protected:
    PrivacyOfLinux() { fakes::fillWithLinuxTraces(machine); }
    void refresh() {
        privacy().refreshRunning();
        runWhatIsThere();
    }
    const std::string used = fakes::firefoxOfLinux + "/b.used/cookies.sqlite";
    const std::string idle = fakes::firefoxOfLinux + "/a.idle/cookies.sqlite";
};

}  // namespace zelk
