// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <QAccessible>
#include <QTest>
#include <functional>
#include <memory>
#include <string>

#include "Camera.h"
#include "ScreenFaults.h"
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

    void expectNoFaults(QQuickWindow& where, const std::string& state) {
        where.grabWindow();  // applies pending layout
        runWhatIsThere();
        where.grabWindow();
        EXPECT_THAT(layoutFaults(where), testing::IsEmpty()) << state;
        EXPECT_THAT(accessibilityFaults(where), testing::IsEmpty()) << state;
    }
    /// Where what has the focus is in sight.
    void expectNoFaultsWithRing(const std::string& state) {
        expectNoFaults(window(), state);
        EXPECT_THAT(ringFaults(window()), testing::IsEmpty()) << state;
    }
    /// Calls `look` in a small and a large window, with normal and large text, and in both themes.
    void inEverySize(const std::string& state, const std::function<void(const std::string&)>& look) {
        for (const QSize size : {QSize(960, 620), QSize(1600, 1000)}) {
            window().resize(size);
            runUntil([&] { return window().contentItem()->size() == QSizeF(size); });
            for (const double factor : {1.0, 1.5}) {
                main().textScale().setFactor(factor);
                for (const auto theme : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
                    model().setAppearance(theme);
                    look(state + ", " + std::to_string(size.width()) + " wide, texts by " + std::to_string(factor) +
                         (theme == AppModel::Appearance::dark ? ", dark" : ", light"));
                }
            }
        }
        main().textScale().setFactor(1);
    }
    void inEverySize(const std::string& state) {
        inEverySize(state, [this](const std::string& where) { expectNoFaults(window(), where); });
    }

    WindowServices services;
    int quits = 0;

private:
    std::unique_ptr<Shell> shell_;
};

}  // namespace zelk
