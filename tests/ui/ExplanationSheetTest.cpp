// SPDX-License-Identifier: MIT
#include <utility>

#include "ViewFixture.h"
#include "ui/screens/explanation/ExplanationModel.h"

namespace zelk {

namespace {

class ExplanationSheetTest : public ViewFixture {
protected:
    ~ExplanationSheetTest() override { close(); }

    void open(const std::string& path, QSize size = {960, 620}) {
        show(QStringLiteral("import QtQuick\nimport Zelk.App\nItem { id: top; required property "
                            "ExplanationModel note; ExplanationSheet { explanation: top.note } }"),
             size, {{QStringLiteral("note"), QVariant::fromValue(&note)}});
        note.open(path);
        settle();
    }
    std::string text(const char* name) { return find(name)->property("text").toString().toStdString(); }

    ExplanationModel note{"/home/me"};
};

}  // namespace

TEST_F(ExplanationSheetTest, showsNote) {
    open("/home/me/site/.next");
    EXPECT_EQ(text("explanationTitle"), ".next");
    EXPECT_EQ(text("explanationPath"), "/home/me/site/.next");
    EXPECT_EQ(text("explanationBadge"), "regenerates");
    EXPECT_EQ(find("explanationBadge")->property("ink").value<QColor>(), QColor(245, 166, 35));
    EXPECT_EQ(text("explanationRegenerates"), "regenerates");
    EXPECT_EQ(text("explanationDetail"),
              "Build cache for a Next.js / Turbo / Vercel project. Regenerated on your next dev or build run.");
    EXPECT_EQ(text("explanationDone"), "Done");
}

TEST_F(ExplanationSheetTest, tintsBadgeAndSymbolByGradeInBothThemes) {
    struct Case {
        const char* path;
        QColor dark;
        QColor light;
    };
    open("");
    for (const auto& [path, dark, light] :
         {Case{"/x/__pycache__", {50, 199, 123}, {50, 199, 123}}, Case{"/x/target", {245, 166, 35}, {224, 133, 26}},
          Case{"/x/.git", {255, 90, 77}, {216, 64, 46}}}) {
        note.open(path);
        for (const auto& [appearance, tint] :
             {std::pair(AppModel::Appearance::dark, dark), std::pair(AppModel::Appearance::light, light)}) {
            model().setAppearance(appearance);
            settle();
            EXPECT_EQ(find("explanationBadge")->property("ink").value<QColor>(), tint) << path;
            ASSERT_NE(symbol("questionmark.circle.fill"), nullptr);
            EXPECT_EQ(symbol("questionmark.circle.fill")->property("color").value<QColor>(), tint) << path;
        }
    }
}

TEST_F(ExplanationSheetTest, showsRegeneratesTagOnlyIfItRegenerates) {
    open("/home/me/site/.git");
    EXPECT_EQ(text("explanationBadge"), "review");
    EXPECT_EQ(find("explanationRegenerates"), nullptr);
}

TEST_F(ExplanationSheetTest, escapeDoneAndReturnClose) {
    open("/home/me/site/.git");
    press(Qt::Key_Escape);
    EXPECT_FALSE(note.shown());
    note.open("/home/me/site/.git");
    settle();
    click("explanationDone");
    EXPECT_FALSE(note.shown());
    note.open("/home/me/site/.git");
    settle();
    EXPECT_EQ(focusName(), "Done");
    press(Qt::Key_Return);
    EXPECT_FALSE(note.shown());
    EXPECT_EQ(find("explanationDone"), nullptr);
}

TEST_F(ExplanationSheetTest, elidesLongPathInTheMiddle) {
    const std::string name(200, 'n');
    open("/home/me/" + name + "/" + name);
    QQuickItem* path = find("explanationPath");
    EXPECT_EQ(path->property("lineCount").toInt(), 1);
    EXPECT_TRUE(path->property("truncated").toBool());
    EXPECT_EQ(path->property("elide").toInt(), 2) << "Text.ElideMiddle";
    QQuickItem* title = find("explanationTitle");
    EXPECT_LE(title->property("contentWidth").toReal(), title->width());
    const QRectF done = find("explanationDone")->mapRectToScene(find("explanationDone")->boundingRect());
    EXPECT_TRUE(QRectF(0, 0, 960, 620).contains(done));
}

TEST_F(ExplanationSheetTest, spacesPartsBy10) {
    open("/home/me/site/.next");
    const auto box = [&](const char* name) { return find(name)->mapRectToScene(find(name)->boundingRect()); };
    EXPECT_EQ(box("explanationBadge").top() - box("explanationPath").bottom(), 10);
    EXPECT_EQ(box("explanationDetail").top() - box("explanationBadge").bottom(), 10);
    EXPECT_EQ(box("explanationDone").top() - box("explanationDetail").bottom(), 10);
}

TEST_F(ExplanationSheetTest, clipsNothingInLargeText) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    open("/home/me/Library/Containers/app");
    for (const char* name : {"explanationTitle", "explanationDetail"}) {
        QQuickItem* item = find(name);
        EXPECT_LE(item->property("contentHeight").toReal(), item->height() + 0.5) << name;
        EXPECT_LE(item->property("contentWidth").toReal(), item->width() + 0.5) << name;
    }
    const QRectF done = find("explanationDone")->mapRectToScene(find("explanationDone")->boundingRect());
    EXPECT_TRUE(QRectF(0, 0, 960, 620).contains(done));
}

}  // namespace zelk
