// SPDX-License-Identifier: MIT
// What a command of Tune answered, as it is seen and announced.
#include <gmock/gmock.h>

#include "TuneViewFixture.h"
#include "fakes/Announcements.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class TuneAnswers : public TuneViewFixture {};

}  // namespace

TEST_F(TuneAnswers, showsTheAnswerInItsOwnFace) {
    openScanned();
    EXPECT_EQ(find("tuneOutput"), nullptr);
    answer("one\rtwo");
    QQuickItem* text = showing("one\ntwo");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->property("font").value<QFont>().family(), singleton<Theme>("Theme").fixedFont());
    EXPECT_EQ(text->property("lineCount").toInt(), 2);
    const std::vector<std::string> texts = seenTexts();
    EXPECT_LT(std::find(texts.begin(), texts.end(), "Refresh memory"),
              std::find(texts.begin(), texts.end(), "one\ntwo"));
    EXPECT_LT(std::find(texts.begin(), texts.end(), "one\ntwo"),
              std::find(texts.begin(), texts.end(), "Background items (4)"));
}

TEST_F(TuneAnswers, answerIsAnAlert) {
    openScanned();
    answer("done");
    EXPECT_THAT(namesOf(QAccessible::AlertMessage), ElementsAre("done"));
    EXPECT_THAT(namesOf(QAccessible::Paragraph), Not(Contains("done"))) << "not twice";
}

TEST_F(TuneAnswers, everyAnswerIsAnnouncedOnce) {
    openScanned();
    fakes::Announcements said(window());
    for (const char* text : {"done", "done", "more"}) {
        answer(text);
        EXPECT_THAT(said.take(), ElementsAre(text));
        EXPECT_THAT(namesOf(QAccessible::AlertMessage), ElementsAre(text));
    }
}

TEST_F(TuneAnswers, answerIsNotAnnouncedOnReturn) {
    openScanned();
    answer("done");
    fakes::Announcements said(window());
    for (int times = 0; times < 2; ++times) {
        view().setVisible(false);
        settle();
        view().setVisible(true);
        settle();
        EXPECT_THAT(said.take(), IsEmpty());
        EXPECT_THAT(namesOf(QAccessible::AlertMessage), IsEmpty());
        EXPECT_THAT(seenTexts(), Contains("done")) << "it is there all the same";
        EXPECT_THAT(namesOf(QAccessible::Paragraph), Contains("done"));
    }
    openScanned();
    EXPECT_THAT(namesOf(QAccessible::AlertMessage), IsEmpty()) << "nor in a new view";
    EXPECT_THAT(namesOf(QAccessible::Paragraph), Contains("done"));
    fakes::Announcements saidThere(window());
    answer("done");
    EXPECT_THAT(saidThere.take(), ElementsAre("done"));
}

TEST_F(TuneAnswers, answerThatCameMeanwhileIsNotAnnouncedOnReturn) {
    openScanned();
    fakes::Announcements said(window());
    view().setVisible(false);
    answer("late");
    view().setVisible(true);
    settle();
    EXPECT_THAT(said.take(), IsEmpty());
    EXPECT_THAT(seenTexts(), Contains("late"));
    EXPECT_THAT(namesOf(QAccessible::Paragraph), Contains("late"));
}

TEST_F(TuneAnswers, longAnswerScrollsInItsCard) {
    openScanned();
    std::string lines;
    for (int line = 0; line < 200; ++line) lines += "line " + std::to_string(line) + "\n";
    answer(lines);
    EXPECT_LE(find("tuneOutput")->height(), 180);
    EXPECT_THAT(seenTexts(), Contains("Background items (4)"));
    tabTo("tuneOutput");
    EXPECT_EQ(focusName(), "Result");
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(window().activeFocusItem())->text(QAccessible::Description).toStdString(),
        lines);
    const auto y = [this] { return find("tuneOutput")->property("contentY").toReal(); };
    press(Qt::Key_Down);
    EXPECT_GT(y(), 0);
    press(Qt::Key_End);
    EXPECT_GT(y(), 1'000);
    press(Qt::Key_Home);
    EXPECT_EQ(y(), 0);
    answer(lines + "end");
    EXPECT_EQ(focusName(), "Result") << "the keyboard is in the next answer";
}

TEST_F(TuneAnswers, appearingAnswerKeepsTheHeadInPlace) {
    addMany(40);
    openScanned({900, 500});
    const auto yOf = [this](const char* text) { return showing(text)->mapToScene({}).y(); };
    const double before = yOf("Memory");
    answer("done");
    EXPECT_EQ(yOf("Memory"), before);
    tabTo("agentList");
    press(Qt::Key_End);
    EXPECT_LT(yOf("Memory"), 0);
}

}  // namespace zelk
