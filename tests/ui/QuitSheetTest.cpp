// SPDX-License-Identifier: MIT
// The question that is asked when the application quits during a removal.
#include "ViewFixture.h"
#include "ui/shell/QuitQuestion.h"

namespace zelk {

namespace {

using Names = std::vector<std::string>;

class QuitSheetWindow : public ViewFixture {
protected:
    ~QuitSheetWindow() override { close(); }

    /// Asks the question while a button behind it has the focus.
    void ask() {
        show(QStringLiteral("import QtQuick\nimport Zelk.Controls\nimport Zelk.App\n"
                            "FocusScope { id: top; required property QuitQuestion quitting; focus: true\n"
                            "Button { kind: Button.Primary; objectName: \"below\"; text: \"Below\"; focus: true }\n"
                            "QuitSheet { question: top.quitting } }"),
             QSize(960, 620), {{QStringLiteral("quitting"), QVariant::fromValue(&question)}});
        removal = model().removals().begin(1);
        question.quit();
        settle();
    }
    void endRemoval() {
        removal->noteDone();
        settle();
    }

    int quits = 0;
    QuitQuestion question{model().removals(), [this] { ++quits; }};
    std::shared_ptr<Removal> removal;
};

}  // namespace

TEST_F(QuitSheetWindow, isDialogWithTitleNoteAndAnswers) {
    ask();
    EXPECT_EQ(seenTexts(), (Names{"Below", "Something is still being removed",
                                  "Finish first, and Zelk quits by itself when everything is removed. Stop now, and "
                                  "what has begun is finished while the rest stays where it is.",
                                  "Cancel", "Stop now", "Finish first"}));
    QQuickItem* inside = window().activeFocusItem();
    bool dialog = false;
    for (; inside != nullptr && !dialog; inside = inside->parentItem()) {
        QAccessibleInterface* said = QAccessible::queryAccessibleInterface(inside);
        dialog = said != nullptr && said->role() == QAccessible::Dialog &&
                 said->text(QAccessible::Name) == QStringLiteral("Something is still being removed");
    }
    EXPECT_TRUE(dialog);
    expectAllControlsNamed();
}

TEST_F(QuitSheetWindow, focusStartsOnFinishFirstAndStaysInside) {
    ask();
    EXPECT_EQ(focusName(), "Finish first");
    const Names order = tabOrder();
    for (const char* name : {"Finish first", "Cancel", "Stop now"})
        EXPECT_EQ(std::count(order.begin(), order.end(), name), 1) << name;
    EXPECT_EQ(std::count(order.begin(), order.end(), "Below"), 0);
}

TEST_F(QuitSheetWindow, returnFinishesFirst) {
    ask();
    press(Qt::Key_Return);
    EXPECT_FALSE(question.shown());
    EXPECT_TRUE(removal->mayBegin());
    EXPECT_EQ(find("finishFirst"), nullptr);
    endRemoval();
    EXPECT_EQ(quits, 1);
}

TEST_F(QuitSheetWindow, escapeAndCancelRestoreFocus) {
    ask();
    press(Qt::Key_Escape);
    EXPECT_FALSE(question.shown());
    EXPECT_TRUE(removal->mayBegin());
    EXPECT_EQ(find("finishFirst"), nullptr);
    EXPECT_EQ(focusName(), "Below");
    question.quit();
    settle();
    click("cancelQuit");
    EXPECT_FALSE(question.shown());
    EXPECT_EQ(focusName(), "Below");
    endRemoval();
    EXPECT_EQ(quits, 0);
}

TEST_F(QuitSheetWindow, staysAfterStopNowUntilRemovalEnds) {
    ask();
    click("stopNow");
    EXPECT_FALSE(removal->mayBegin());
    for (const char* button : {"cancelQuit", "stopNow", "finishFirst"}) EXPECT_FALSE(find(button)->isEnabled());
    EXPECT_EQ(find("quitNote")->property("text").toString(),
              QStringLiteral("Nothing more begins. Zelk quits as soon as what has begun is finished."));
    press(Qt::Key_Escape);
    press(Qt::Key_Return);
    EXPECT_TRUE(question.stopping());
    EXPECT_NE(find("finishFirst"), nullptr);
    endRemoval();
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(find("finishFirst"), nullptr);
}

TEST_F(QuitSheetWindow, closesWhenRemovalEnds) {
    ask();
    endRemoval();
    EXPECT_EQ(find("finishFirst"), nullptr);
    EXPECT_EQ(focusName(), "Below");
    EXPECT_EQ(quits, 0);
}

TEST_F(QuitSheetWindow, spinnerHasRoomBesideLongAnswers) {
    ask();
    EXPECT_EQ(find("quitSpinner"), nullptr);
    click("stopNow");
    // As wide as the sheet, as they are in some languages.
    for (const char* name : {"cancelQuit", "stopNow", "finishFirst"})
        find(name)->setProperty("text", QString(12, QLatin1Char('m')));
    settle();
    const auto box = [this](const char* name) { return find(name)->mapRectToScene(find(name)->boundingRect()); };
    const QRectF spinner = box("quitSpinner");
    EXPECT_GE(spinner.left(), box("quitNote").left());
    EXPECT_LE(spinner.right(), box("finishFirst").right());
    EXPECT_LE(spinner.bottom(), box("finishFirst").top());
}

TEST_F(QuitSheetWindow, clipsNothingInLargeText) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    ask();
    for (const bool stopping : {false, true}) {
        if (stopping) click("stopNow");
        QQuickItem* note = find("quitNote");
        EXPECT_LE(note->property("contentHeight").toReal(), note->height() + 0.5);
        for (const char* name : {"cancelQuit", "stopNow", "finishFirst"}) {
            const QQuickItem* button = find(name);
            EXPECT_TRUE(QRectF(0, 0, 960, 620).contains(button->mapRectToScene(button->boundingRect()))) << name;
            EXPECT_GE(button->mapRectToScene(button->boundingRect()).left(),
                      note->mapRectToScene(note->boundingRect()).left())
                << name;
        }
    }
}

}  // namespace zelk
