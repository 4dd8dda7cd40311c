// SPDX-License-Identifier: MIT
// The view of Tune with its model, on a machine with four background items.
#pragma once

#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "TextsOf.h"
#include "ViewFixture.h"
#include "fakes/TuneHome.h"
#include "ui/screens/tune/TuneScreenModel.h"

namespace zelk {

class TuneViewFixture : public ViewFixture {
protected:
    TuneViewFixture() { fakes::fillWithAgents(machine); }
    ~TuneViewFixture() override { close(); }

    TuneScreenModel& tune() {
        if (!tune_) tune_ = std::make_unique<TuneScreenModel>(model());
        return *tune_;
    }
    void open(QSize size = {900, 1000}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("TuneView"), "tune", &tune(), size);
    }
    void openScanned(QSize size = {900, 1000}) {
        model().tune().scan();
        open(size);
    }
    void addMany(int count) {
        for (int item = 0; item < count; ++item)
            machine.files.addFile(fakes::ownAgents + "/" + std::to_string(1'000 + item) + ".plist",
                                  fakes::agentList("Item " + std::to_string(1'000 + item)));
    }
    QQuickItem& list() { return *find("agentList"); }
    int current() { return list().property("currentIndex").toInt(); }
    bool listHasKeyboard() { return list().hasActiveFocus(); }
    void tabTo(const char* name) {
        for (int stop = 0; stop < 20; ++stop) {
            for (const QQuickItem* at = window().activeFocusItem(); at != nullptr; at = at->parentItem())
                if (at->objectName() == QLatin1String(name)) return;
            press(Qt::Key_Tab);
        }
        FAIL() << "Tab does not reach " << name;
    }
    void type(const std::string& words) {
        for (const char letter : words) QTest::keyClick(&window(), letter);
        settle();
    }
    void answer(const std::string& text) {
        machine.processes.outcome = [=](const auto&) { return ChildOutcome{std::nullopt, 0, text}; };
        tune().flushDNS();
        runUntil([this] { return !tune().busy(); });
        settle();
    }
    /// What a screen reader is told about a visible row.
    QAccessibleInterface& said(int row) {
        const QQuickItem* box = find(("agentTick" + std::to_string(row)).c_str());
        return *QAccessible::queryAccessibleInterface(box->parentItem());
    }
    std::string descriptionOf(int row) { return said(row).text(QAccessible::Description).toStdString(); }
    /// The names of all visible nodes of this role that screen readers find in the window.
    std::vector<std::string> namesOf(QAccessible::Role role) {
        std::vector<std::string> names;
        collect(*QAccessible::queryAccessibleInterface(&window()), role, names);
        return names;
    }
    QColor colorOf(const char* text) { return showing(text)->property("color").value<QColor>(); }

private:
    static void collect(const QAccessibleInterface& node, QAccessible::Role role, std::vector<std::string>& names) {
        if (node.state().invisible) return;
        if (node.role() == role) names.push_back(node.text(QAccessible::Name).toStdString());
        for (int index = 0; index < node.childCount(); ++index)
            if (const QAccessibleInterface* child = node.child(index)) collect(*child, role, names);
    }

    const TextsOf texts_{macOS};
    std::unique_ptr<TuneScreenModel> tune_;
};

}  // namespace zelk
