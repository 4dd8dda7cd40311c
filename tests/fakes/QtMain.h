// SPDX-License-Identifier: MIT
// main() of the test programs that show windows.
#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <cstdlib>

#include "QtMessages.h"
#include "ui/shell/Application.h"

namespace zelk::fakes {

/// Messages of Qt and the QML engine fail the test that is running.
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
    testing::InitGoogleMock(&argc, argv);
    // Models are tested with invalid rows on purpose.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.core.qabstractitemmodel.checkindex=false"));
    tour::keepQtMessages();
    testing::UnitTest::GetInstance()->listeners().Append(new FailOnQtMessages);
    const int status = RUN_ALL_TESTS();
    // Messages after the last test.
    return tour::takeQtMessages().isEmpty() ? status : EXIT_FAILURE;
}

}  // namespace zelk::fakes
