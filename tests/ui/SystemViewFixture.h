// SPDX-License-Identifier: MIT
// The System screen in a window, on fake snapshot tools.
#pragma once

#include <QAccessible>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "TextsOf.h"
#include "ViewFixture.h"
#include "fakes/SnapshotTools.h"
#include "ui/screens/system/SystemScreenModel.h"

namespace zelk {

class SystemViewFixture : public ViewFixture {
protected:
    SystemViewFixture() {
        tools.kept = {{"com.apple.os.update-1", false, 1}, {"NewRoot", true, 2}, {"OldRoot", true, 3}};
        machine.vitals.setVolume(home, VolumeInfo{500'000'000'000, 120'000'000'000, 150'000'000'000});
    }
    ~SystemViewFixture() override { close(); }

    void onLinux() {
        // The model reads it when it is made.
        destroyModel();
        machine.system = SystemKind::desktopLinux;
        for (fakes::SnapshotTools::Kept& one : tools.kept) one.date.clear();  // names of buttons say it
        singleton<Theme>("Theme").follow(model());
        linuxTexts_ = std::make_unique<TextsOf>(desktopLinux);
    }
    /// Shows the results of a survey.
    void open(QSize size = {900, 1200}) {
        survey();
        show(size);
    }
    void show(QSize size = {900, 1200}) {
        screen_ = std::make_unique<SystemScreenModel>(model());
        ViewFixture::show(QStringLiteral("Zelk.App"), QStringLiteral("SystemView"), "system", screen_.get(), size);
        settle();
    }
    void close() {
        ViewFixture::close();
        screen_.reset();
    }
    SnapshotsModel& snapshots() { return *screen_->snapshots(); }
    int count(const char* text) {
        const std::vector<std::string> texts = seenTexts();
        return static_cast<int>(std::count(texts.begin(), texts.end(), text));
    }
    void answer(const std::string& text, int status = 0) { tools.removal = {std::nullopt, status, text}; }
    static double shownOpacity(const QQuickItem* item) {
        double opacity = 1;
        for (; item != nullptr; item = item->parentItem()) opacity *= item->opacity();
        return opacity;
    }
    static QAccessible::Role roleOf(QQuickItem* item) {
        const QAccessibleInterface* control = QAccessible::queryAccessibleInterface(item);
        return control == nullptr ? QAccessible::NoRole : control->role();
    }
    /// The names of the visible items of this role, from top to bottom.
    std::vector<std::string> spoken(QAccessible::Role role) {
        std::vector<std::string> names;
        for (QQuickItem* item : seen())
            if (item->property("spoken").isValid() && roleOf(item) == role) names.push_back(nameOf(item));
        return names;
    }

    fakes::SnapshotTools tools{machine};

private:
    const TextsOf texts_{macOS};
    std::unique_ptr<TextsOf> linuxTexts_;
    std::unique_ptr<SystemScreenModel> screen_;
};

}  // namespace zelk
