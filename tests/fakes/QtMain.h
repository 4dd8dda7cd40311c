// SPDX-License-Identifier: MIT
// main() of the programs that test windows.
#pragma once

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QLocale>
#include <QStringList>

#include "ui/shell/Application.h"

namespace zelk::fakes {

/// Complaints of the QML engine, which it prints and goes on: each fails the test in which it comes.
class QmlComplaints : public testing::EmptyTestEventListener {
public:
    static void listen() {
        passOn() = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
            if (type != QtDebugMsg && type != QtInfoMsg && text.contains(QStringLiteral("qrc:"))) noted().append(text);
            passOn()(type, context, text);
        });
        testing::UnitTest::GetInstance()->listeners().Append(new QmlComplaints);
    }

    void OnTestEnd(const testing::TestInfo&) override {
        for (const QString& text : std::exchange(noted(), {})) ADD_FAILURE() << text.toStdString();
    }

private:
    static QStringList& noted() {
        static QStringList texts;
        return texts;
    }
    static QtMessageHandler& passOn() {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
};

inline int runWindowTests(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QApplication application(argc, argv);
    dressApplication();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QAccessible::setActive(true);
    testing::InitGoogleMock(&argc, argv);
    QmlComplaints::listen();
    return RUN_ALL_TESTS();
}

}  // namespace zelk::fakes
