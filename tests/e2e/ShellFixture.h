// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QTest>

#include "Camera.h"
#include "state/AppModelFixture.h"
#include "ui/shell/Shell.h"
#include "ui/shell/SidebarModel.h"
#include "ui/theme/Motion.h"
#include "ui/theme/TextScale.h"

namespace zelk {

/// The whole application on a machine in memory, operated with mouse and keyboard.
class ShellFixture : public AppModelFixture {
protected:
    ShellFixture() {
        fillHome();
        addWideFolder(home + "/wide");
    }
    ~ShellFixture() override {
        machine.directories.release();
        shell_.reset();
    }

    Shell& shell() {
        if (!shell_) {
            services.quit = [this] { ++quits; };
            shell_ = std::make_unique<Shell>(model(), services);
            shell_->main().motion().setReduced(true);
            shell_->main().textScale().setFactor(1);  // independent of the desktop
            shell_->start();
            runUntil([&] { return shell_->main().isUp(); });
            // The offscreen platform has no screen reader; without this the controls would not set their roles.
            QAccessible::setActive(true);
        }
        return *shell_;
    }
    MainWindow& main() { return shell().main(); }
    QQuickWindow& window() { return main().window(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { press(window(), key, modifiers); }
    void press(QWindow& where, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&where, key, modifiers);
    }
    void click(const char* name) {
        window().grabWindow();  // applies pending layout
        EXPECT_TRUE(tour::clickOn(window(), QString::fromLatin1(name))) << name;
    }
    QQuickItem* find(const char* name) { return tour::findControl(window(), QString::fromLatin1(name)); }
    /// The outermost visible item with this text, or nullptr.
    QQuickItem* showing(const QString& text) {
        window().grabWindow();  // applies pending layout
        std::vector<QQuickItem*> pending{window().contentItem()};
        while (!pending.empty()) {
            QQuickItem* item = pending.back();
            pending.pop_back();
            if (!item->isVisible()) continue;
            if (item->property("text").toString() == text) return item;
            for (QQuickItem* child : item->childItems()) pending.push_back(child);
        }
        return nullptr;
    }
    bool shows(const QString& text) { return showing(text) != nullptr; }
    QString focusName() { return window().activeFocusItem()->objectName(); }

    WindowServices services;
    int quits = 0;

private:
    std::unique_ptr<Shell> shell_;
};

}  // namespace zelk
