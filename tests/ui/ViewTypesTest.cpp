// SPDX-License-Identifier: MIT
#include "ui/shell/ViewTypes.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "fakes/EventLoop.h"
#include "ui/shell/Application.h"

namespace zelk {

namespace {

class ViewTypesTest : public testing::Test {
protected:
    ViewTypesTest() {
        registerInterface();
        engine.addImportPath(QStringLiteral("qrc:/"));
    }

    /// Whether the engine needs no more time before it can create this view.
    bool isReady(const QString& view) {
        const QUrl file(QStringLiteral("qrc:/Zelk/App/") + view);
        const QQmlComponent component(&engine, file, QQmlComponent::Asynchronous);
        return component.isReady();
    }

    QQmlEngine engine;
};

}  // namespace

TEST_F(ViewTypesTest, everyViewIsReadyInTheEnd) {
    const QStringList views = QDir(QStringLiteral(":/Zelk/App")).entryList({QStringLiteral("*.qml")});
    ASSERT_GT(views.size(), 40);
    EXPECT_FALSE(isReady(QStringLiteral("ToolsView.qml")));
    ViewTypes types(engine);
    EXPECT_FALSE(types.isLoaded());
    types.loadAll();
    runUntil([&] { return types.isLoaded(); });
    for (const QString& view : views) EXPECT_TRUE(isReady(view)) << view.toStdString();
}

TEST_F(ViewTypesTest, whatIsWantedSoonIsNotWaitedForByTheRest) {
    ViewTypes types(engine);
    types.loadSoon({QStringLiteral("LensPanes")});
    EXPECT_FALSE(types.isLoaded()) << "there are others";
    types.loadAll();
    runUntil([&] { return types.isLoaded(); });
    EXPECT_TRUE(isReady(QStringLiteral("LensPanes.qml")));
    EXPECT_TRUE(isReady(QStringLiteral("WelcomeView.qml")));
}

TEST_F(ViewTypesTest, mayGoWhileItLoads) {
    auto types = std::make_unique<ViewTypes>(engine);
    types->loadAll();
    types.reset();
    const QQmlComponent other(&engine, QUrl(QStringLiteral("qrc:/Zelk/App/WelcomeView.qml")),
                              QQmlComponent::Asynchronous);
    runUntil([&] { return !other.isLoading(); });
    EXPECT_TRUE(other.isReady());
}

}  // namespace zelk
