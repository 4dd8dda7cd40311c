// SPDX-License-Identifier: MIT
// main() of the programs that test windows.
#pragma once

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <cstdlib>

#include "QtMessages.h"
#include "ui/shell/Application.h"

namespace zelk::fakes {

/// What Qt and the QML engine complain about fails the test in which it comes.
class FailOnQtMessages : public testing::EmptyTestEventListener {
public:
    void OnTestEnd(const testing::TestInfo&) override {
        for (const QString& text : tour::takeQtMessages()) ADD_FAILURE() << text.toStdString();
    }
};

inline int runWindowTests(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QML_DISABLE_DISK_CACHE", "1");  // a build that interprets its views would keep them in the home
    const QApplication application(argc, argv);
    dressApplication();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QAccessible::setActive(true);
    testing::InitGoogleMock(&argc, argv);
    // Models are asked on purpose for rows that are not there.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.core.qabstractitemmodel.checkindex=false"));
    tour::keepQtMessages();
    testing::UnitTest::GetInstance()->listeners().Append(new FailOnQtMessages);
    const int status = RUN_ALL_TESTS();
    // What was said after the last test.
    return tour::takeQtMessages().isEmpty() ? status : EXIT_FAILURE;
}

}  // namespace zelk::fakes
