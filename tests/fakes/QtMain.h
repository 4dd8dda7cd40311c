// SPDX-License-Identifier: MIT
// main() of the test programs that show windows.
#pragma once

#include <gmock/gmock.h>

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <cstdlib>

#include "MarkedLanguage.h"
#include "QtMessages.h"
#include "ui/shell/Application.h"
#include "ui/shell/Translations.h"

namespace zelk::fakes {

/// Messages of Qt and the QML engine fail the test that is running, and so do texts that have no German translation,
/// in whatever language they are shown.
class FailOnQtMessages : public testing::EmptyTestEventListener {
public:
    explicit FailOnQtMessages(tour::MarkedLanguage& known) : known_(known) {}
    void OnTestEnd(const testing::TestInfo&) override {
        for (const QString& text : tour::takeQtMessages()) ADD_FAILURE() << text.toStdString();
        for (const QString& text : known_.takeMissing()) ADD_FAILURE() << "no translation of " << text.toStdString();
    }

private:
    tour::MarkedLanguage& known_;
};

/// Shows texts and numbers in this language: the words of the tests are English, whoever runs them.
inline int runWindowTests(int argc, char** argv, const QLocale& locale = {QLocale::English, QLocale::UnitedStates}) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QML_DISABLE_DISK_CACHE", "1");  // a build that interprets its views would keep them in the home
    const QApplication application(argc, argv);
    tour::MarkedLanguage known(QStringLiteral("de"), false);
    QCoreApplication::installTranslator(&known);
    const Translations translations(locale.uiLanguages(), {tour::builtTranslations()});
    dressApplication();
    QLocale::setDefault(locale);
    testing::InitGoogleMock(&argc, argv);
    // Models are tested with invalid rows on purpose.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.core.qabstractitemmodel.checkindex=false"));
    tour::keepQtMessages();
    testing::UnitTest::GetInstance()->listeners().Append(new FailOnQtMessages(known));
    if (!known.isLoaded()) return EXIT_FAILURE;
    const int status = RUN_ALL_TESTS();
    // Messages after the last test.
    return tour::takeQtMessages().isEmpty() ? status : EXIT_FAILURE;
}

}  // namespace zelk::fakes
