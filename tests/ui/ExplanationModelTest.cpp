// SPDX-License-Identifier: MIT
#include "ui/screens/explanation/ExplanationModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace zelk {

namespace {

const std::string home = "/home/me";

class ExplanationModelTest : public testing::Test {
protected:
    ExplanationModel note{home};
};

}  // namespace

TEST_F(ExplanationModelTest, isShownBetweenOpenAndClose) {
    EXPECT_FALSE(note.shown());
    QSignalSpy changed(&note, &ExplanationModel::changed);
    note.open("/x/node_modules");
    EXPECT_TRUE(note.shown());
    EXPECT_EQ(changed.size(), 1);
    note.close();
    EXPECT_FALSE(note.shown());
    EXPECT_EQ(note.title(), QStringLiteral("node_modules")) << "the sheet still shows it while it closes";
    note.close();
    EXPECT_EQ(changed.size(), 2);
}

TEST_F(ExplanationModelTest, explainsAPath) {
    note.open(home + "/projects/site/node_modules");
    EXPECT_EQ(note.title(), QStringLiteral("node_modules"));
    EXPECT_EQ(note.path(), QStringLiteral("/home/me/projects/site/node_modules"));
    EXPECT_EQ(note.badge(), QStringLiteral("regenerates"));
    EXPECT_TRUE(note.regenerates());
    EXPECT_EQ(note.detail(), QStringLiteral("Installed JavaScript packages for a project. Safe to delete — reinstall "
                                            "with npm/pnpm/yarn install when you next work on it."));
}

TEST_F(ExplanationModelTest, gradeHasABadge) {
    struct Case {
        const char* path;
        const char* badge;
        ExplanationModel::Grade grade;
    };
    for (const auto& [path, badge, grade] : {Case{"/x/__pycache__", "safe", ExplanationModel::Safe},
                                             Case{"/x/target", "regenerates", ExplanationModel::Regenerates},
                                             Case{"/x/.git", "review", ExplanationModel::Review}}) {
        note.open(path);
        EXPECT_EQ(note.badge().toStdString(), badge);
        EXPECT_EQ(note.grade(), grade) << path;
    }
}

TEST_F(ExplanationModelTest, safePathMayAlsoRegenerate) {
    note.open("/x/__pycache__");
    EXPECT_EQ(note.title(), QStringLiteral("Python __pycache__"));
    EXPECT_TRUE(note.regenerates());
    note.open("/x/.git");
    EXPECT_FALSE(note.regenerates());
}

TEST_F(ExplanationModelTest, explainsFoldersOfThisHomeOnly) {
    note.open(home + "/Downloads");
    EXPECT_EQ(note.title(), QStringLiteral("Downloads"));
    EXPECT_EQ(note.detail(), QStringLiteral("Files you've downloaded. Often safe to clean out, but check for anything "
                                            "you want to keep."));
    note.open("/home/you/Downloads");
    EXPECT_EQ(note.detail(), QStringLiteral("Zelk doesn't have a specific note for this location. Check what's inside "
                                            "before deleting, and prefer moving to Trash."));
}

TEST_F(ExplanationModelTest, showsInvalidPathRepaired) {
    note.open("/x/odd\n\xff");
    EXPECT_EQ(note.title(), QStringLiteral("odd\u240a\ufffd"));
    EXPECT_EQ(note.path(), QStringLiteral("/x/odd\u240a\ufffd"));
}

TEST_F(ExplanationModelTest, emptyPathIsThisItem) {
    note.open("");
    EXPECT_EQ(note.title(), QStringLiteral("This item"));
    EXPECT_EQ(note.path(), QString());
}

}  // namespace zelk
