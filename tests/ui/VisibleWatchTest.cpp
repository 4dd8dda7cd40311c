// SPDX-License-Identifier: MIT
#include "ui/controls/VisibleWatch.h"

#include <QSignalSpy>

#include "ViewFixture.h"

namespace zelk {

namespace {

class Watching : public ViewFixture {
protected:
    void open() {
        show(QStringLiteral("import QtQuick\nimport Zelk.Controls\n"
                            "Item { Item { objectName: 'around'; Item { VisibleWatch { objectName: 'watch' } } } }"),
             {200, 100});
    }
    VisibleWatch& watch() { return *view().findChild<VisibleWatch*>(QStringLiteral("watch")); }
    QQuickItem& around() { return *view().findChild<QQuickItem*>(QStringLiteral("around")); }
};

}  // namespace

TEST(VisibleWatch, seesNothingWithoutWindow) {
    const VisibleWatch alone;
    EXPECT_FALSE(alone.seen());
}

TEST(VisibleWatch, seesWindowWhenItIsExposed) {
    QQuickWindow window;
    VisibleWatch watch(window.contentItem());
    EXPECT_FALSE(watch.seen());
    QSignalSpy changes(&watch, &VisibleWatch::seenChanged);
    window.show();
    EXPECT_EQ(watch.seen(), window.isExposed());
    runUntil([&] { return window.isExposed(); });
    EXPECT_TRUE(watch.seen());
    EXPECT_EQ(changes.count(), 1);
}

TEST(VisibleWatch, outlivesItsWindow) {
    auto window = std::make_unique<QQuickWindow>();
    VisibleWatch watch;
    watch.setParentItem(window->contentItem());
    window->show();
    runUntil([&] { return window->isExposed(); });
    ASSERT_TRUE(watch.seen());
    window.reset();
    EXPECT_FALSE(watch.seen());
}

TEST(VisibleWatch, followsItsItemIntoAnotherWindow) {
    QQuickWindow hidden;
    QQuickWindow shown;
    VisibleWatch watch(hidden.contentItem());
    shown.show();
    runUntil([&] { return shown.isExposed(); });
    EXPECT_FALSE(watch.seen());
    watch.setParentItem(shown.contentItem());
    EXPECT_TRUE(watch.seen());
    hidden.show();
    runUntil([&] { return hidden.isExposed(); });
    shown.hide();
    runWhatIsThere();
    EXPECT_FALSE(watch.seen()) << "it hears of its own window alone";
    watch.setParentItem(nullptr);
    EXPECT_FALSE(watch.seen());
}

TEST_F(Watching, isSeenInShownWindow) {
    open();
    EXPECT_TRUE(watch().seen());
}

TEST_F(Watching, isHiddenWithAnItemAroundIt) {
    open();
    QSignalSpy changes(&watch(), &VisibleWatch::seenChanged);
    around().setVisible(false);
    EXPECT_FALSE(watch().seen());
    around().setVisible(true);
    EXPECT_TRUE(watch().seen());
    watch().setVisible(false);
    EXPECT_FALSE(watch().seen());
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(Watching, isHiddenWithItsWindow) {
    open();
    window().hide();
    runWhatIsThere();
    EXPECT_FALSE(watch().seen());
    window().show();
    runUntil([&] { return window().isExposed(); });
    EXPECT_TRUE(watch().seen());
}

TEST_F(Watching, isHiddenInMinimizedWindow) {
    open();
    window().setWindowStates(Qt::WindowMinimized);
    runWhatIsThere();
    EXPECT_FALSE(watch().seen());
    window().setWindowStates(Qt::WindowNoState);
    runUntil([&] { return window().isExposed(); });
    EXPECT_TRUE(watch().seen());
    window().setWindowStates(Qt::WindowMaximized);
    runWhatIsThere();
    EXPECT_TRUE(watch().seen());
}

}  // namespace zelk
