// SPDX-License-Identifier: MIT
// Surveys, cleans and brings back in German; a program of its own, since the tables of texts are made once. That every
// text it looks up has a translation is held by its main().
#include <gmock/gmock.h>

#include "e2e/ReclaimingFixture.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

using testing::UnorderedElementsAre;

class InGerman : public ReclaimingFixture {
protected:
    void open(Screen screen) {
        window().grabWindow();  // applies pending layout
        const QString row = QStringLiteral("sidebar") + lookOf(screen).title;
        EXPECT_TRUE(tour::clickOn(window(), row)) << row.toStdString();
    }
    void surveyInGerman() {
        click("scanButton");
        untilSurveyed(1);
    }
    ::testing::AssertionResult says(const char* text) {
        if (shows(QString::fromUtf8(text))) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "“" << text << "” is not on the screen";
    }
};

}  // namespace

TEST_F(InGerman, namesTheScreensAndTheMenus) {
    shell();
    for (const char* text :
         {"Übersicht", "Aufräumen", "Privatsphäre", "Optimieren", "Anwendungen", "Ballast", "Duplikate", "Lupe",
          "Zustand", "System", "Werkzeuge", "Einstellungen", "Datei", "Gehe zu", "Hilfe"})
        EXPECT_TRUE(says(text));
    for (const char* text : {"Overview", "Reclaim", "Settings", "File"}) EXPECT_FALSE(says(text));
}

TEST_F(InGerman, saysWhatASurveyFound) {
    surveyInGerman();
    EXPECT_TRUE(says("Sie können zurückgewinnen"));
    EXPECT_TRUE(says("aus 6 Objekten · am meisten Platz: Videos"));
    EXPECT_TRUE(says("6 Objekte Datenmüll"));
    EXPECT_TRUE(says("250 große Dateien"));
    EXPECT_TRUE(says("3 GB"));
}

TEST_F(InGerman, cleansAndCountsInGerman) {
    surveyInGerman();
    open(Screen::reclaim);
    EXPECT_TRUE(says("Yarn-Cache"));
    EXPECT_TRUE(says("Füllt sich beim nächsten Installieren neu."));
    EXPECT_TRUE(says("3 Objekte · 59 MB"));
    clickText("Yarn-Cache");
    clickText("npm-Cache");
    EXPECT_TRUE(says("1 Objekt · 4 MB")) << "the singular";
    click("reviewButton");
    untilReviewed();
    EXPECT_THAT(reviewed(), UnorderedElementsAre(cursor));
    EXPECT_TRUE(says("1 in den Papierkorb · 0 durch Befehl · 4 MB zurückzugewinnen"));
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "4 MB in den Papierkorb");
    click("confirmCleanup");
    untilDone();
    EXPECT_TRUE(says("In den Papierkorb verschoben"));
    EXPECT_EQ(textOf(window(), "cleanupResult"), "4 MB · 1 Objekt");
}

TEST_F(InGerman, writesNumbersWithTheMarksOfTheLanguage) {
    junk(npm + "/more", 1'234'500'000);
    surveyInGerman();
    open(Screen::reclaim);
    EXPECT_TRUE(says("1,24 GB")) << "of the category";
}

}  // namespace zelk
