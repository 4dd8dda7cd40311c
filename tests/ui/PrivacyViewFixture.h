// SPDX-License-Identifier: MIT
// The view of Privacy with its model.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ViewFixture.h"
#include "fakes/PrivacyHome.h"
#include "ui/screens/privacy/PrivacyScreenModel.h"

namespace zelk {

class PrivacyViewFixture : public ViewFixture {
protected:
    ~PrivacyViewFixture() override { close(); }

    /// Makes the machine a Linux one, which a model knows when it is made. Before the first use of the screen.
    void fillLinux() {
        fakes::fillWithLinuxTraces(machine);
        destroyModel();
        singleton<Theme>("Theme").follow(model());
    }
    PrivacyModel& traces() { return model().privacy(); }
    PrivacyScreenModel& privacy() {
        if (!privacy_) privacy_ = std::make_unique<PrivacyScreenModel>(model());
        return *privacy_;
    }
    void open(QSize size = {900, 700}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("PrivacyView"), "privacy", &privacy(), size);
    }
    void scan() {
        traces().scanTraces();
        runUntil([this] { return !traces().loading(); });
    }
    void openScanned(QSize size = {900, 700}) {
        scan();
        open(size);
    }
    void untilCleared() {
        runUntil([this] { return !model().removals().underWay(); });
        settle();
    }
    void selectAll(bool selected) {
        for (const Trace& trace : traces().traces()) traces().setSelected(trace.identity(), selected);
        settle();
    }
    QQuickItem& list() { return *find("traceList"); }
    int current() { return list().property("currentIndex").toInt(); }
    void tabTo(const char* name) {
        for (int stop = 0; stop < 20; ++stop) {
            for (const QQuickItem* at = window().activeFocusItem(); at != nullptr; at = at->parentItem())
                if (at->objectName() == QLatin1String(name)) return;
            press(Qt::Key_Tab);
        }
        FAIL() << "Tab does not reach " << name;
    }
    QQuickItem& row(int index) {
        return *find(("traceTick" + std::to_string(index)).c_str())->parentItem()->parentItem();
    }
    QAccessibleInterface& said(int index) { return *QAccessible::queryAccessibleInterface(&row(index)); }

private:
    std::unique_ptr<PrivacyScreenModel> privacy_;
};

}  // namespace zelk
