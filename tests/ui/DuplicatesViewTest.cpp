// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QTest>
#include <algorithm>
#include <memory>
#include <set>

#include "PseudoLanguage.h"
#include "TextsOf.h"
#include "ViewFixture.h"
#include "fakes/DuplicatesHome.h"
#include "ui/screens/duplicates/DuplicatesScreenModel.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Strings = std::vector<std::string>;

class DuplicatesWindow : public ViewFixture {
protected:
    ~DuplicatesWindow() override { close(); }

    DuplicatesScreenModel& duplicates() {
        if (!duplicates_) duplicates_ = std::make_unique<DuplicatesScreenModel>(model());
        return *duplicates_;
    }
    void open(QSize size = {900, 700}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("DuplicatesView"), "duplicates", &duplicates(), size);
    }
    void openSearched(QSize size = {900, 700}) {
        duplicates().scan();
        runUntil([this] { return duplicates().results(); });
        open(size);
    }
    void openFilled(QSize size = {900, 700}) {
        fakes::fillWithDuplicates(machine);
        openSearched(size);
    }
    void addMany(int sets) {
        // Below the smallest size, so that they cost little; given to the list directly.
        std::vector<DuplicateGroup> groups;
        for (int set = 0; set < sets; ++set) {
            const std::string folder = "/home/me/" + std::to_string(10'000 + set);
            groups.push_back({std::to_string(set), 2'000'000, {folder + "/a", folder + "/b"}, {}});
        }
        duplicates().rows()->show(groups);
    }
    QQuickItem& list() { return *find("duplicateList"); }
    int current() { return list().property("currentIndex").toInt(); }
    void tabTo(const char* name) {
        for (int stop = 0; stop < 12 && !hasKeyboard(name); ++stop) press(Qt::Key_Tab);
        ASSERT_TRUE(hasKeyboard(name)) << name;
    }
    bool hasKeyboard(const char* name) {
        const QQuickItem* item = find(name);
        return item != nullptr && item->hasActiveFocus();
    }
    void settleRemovals() {
        runUntil([this] { return !model().removals().underWay(); });
        settle();
    }
    QColor colorOf(const char* text) { return showing(text)->property("color").value<QColor>(); }

private:
    std::unique_ptr<DuplicatesScreenModel> duplicates_;
};

}  // namespace

TEST_F(DuplicatesWindow, beginsWithItsPurpose) {
    open();
    EXPECT_EQ(seenTexts(), (Strings{"Duplicates",
                                    "Find byte-identical files — duplicate downloads, copied media, repeated exports — "
                                    "and keep just one.",
                                    "Find duplicates"}));
    EXPECT_NE(symbol("doc.on.doc"), nullptr);
    click("moduleScanButton");
    runUntil([this] { return duplicates().results(); });
}

TEST_F(DuplicatesWindow, showsARunningSearch) {
    machine.tasks.hold();
    open();
    click("moduleScanButton");
    EXPECT_EQ(seenTexts(), (Strings{"Hashing candidates… this can take a moment"}));
    QQuickItem* bar = find("moduleProgressBar");
    ASSERT_NE(bar, nullptr);
    EXPECT_LT(bar->property("share").toDouble(), 0);
    duplicates().setShare(0.5, QStringLiteral("9 MB of 18 MB"));
    EXPECT_EQ(bar->property("share").toDouble(), 0.5);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(bar)->text(QAccessible::Description),
              QString::fromUtf8("Hashing candidates… this can take a moment, 9 MB of 18 MB"));
    machine.tasks.release();
    runUntil([this] { return duplicates().results(); });
}

TEST_F(DuplicatesWindow, showsThatThereAreNone) {
    openSearched();
    EXPECT_EQ(seenTexts(), (Strings{"Duplicates", "identical files", "Find duplicates", "No duplicates",
                                    "No byte-identical files over 2 MB turned up."}));
    EXPECT_NE(symbol("checkmark.seal"), nullptr);
    EXPECT_EQ(find("duplicateList"), nullptr);
}

TEST_F(DuplicatesWindow, showsSetsAsCards) {
    openFilled();
    EXPECT_EQ(
        seenTexts(),
        (Strings{"Duplicates", "2 sets · 8 MB recoverable", "Find duplicates", "3 copies · 3 MB each", "save 6 MB",
                 "Keep first, trash rest", "keep", "/home/me/copies/film 2.mov", "dup", "/home/me/copies/film 3.mov",
                 "dup", "/home/me/copies/film.mov", "2 copies · 2 MB each", "save 2 MB", "Keep first, trash rest",
                 "keep", "/home/me/papers/a.pdf", "dup", "/home/me/papers/b.pdf"}));
    EXPECT_THAT(colorsOf("doc.on.doc.fill"), testing::SizeIs(2));
    EXPECT_THAT(colorsOf("magnifyingglass"), testing::SizeIs(5));
}

TEST_F(DuplicatesWindow, tagsLieOnTintsOfTheirColours) {
    openFilled();
    const auto groundOf = [this](const char* tag) {
        return showing(tag)->parentItem()->property("color").value<QColor>();
    };
    EXPECT_NEAR(groundOf("keep").alphaF(), 0.22, 0.01);
    EXPECT_NEAR(groundOf("dup").alphaF(), 0.22, 0.01);
    QColor green = groundOf("keep");
    green.setAlpha(255);
    EXPECT_EQ(green, QColor(50, 199, 123));
    EXPECT_NE(groundOf("dup").rgb(), groundOf("keep").rgb());
}

TEST_F(DuplicatesWindow, pathsBeginAtOnePlace) {
    // In a language whose words for the tags are wider than their column, and not equally wide.
    tour::PseudoLanguage language;
    QCoreApplication::installTranslator(&language);
    openFilled();
    std::set<double> starts;
    for (const char* path : {"/home/me/copies/film 2.mov", "/home/me/copies/film 3.mov", "/home/me/papers/b.pdf"})
        starts.insert(showing(path)->mapToScene({}).x());
    EXPECT_THAT(starts, testing::SizeIs(1));
    for (const QString& tag : duplicates().rows()->tags()) {
        const QQuickItem* word = showing(tag.toUtf8().constData());
        ASSERT_NE(word, nullptr) << tag.toStdString();
        EXPECT_GE(word->parentItem()->width(), word->implicitWidth() + 2 * 8);
    }
}

TEST_F(DuplicatesWindow, buttonsActOnTheirRow) {
    openFilled();
    click("revealCopy6");
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(ElementsAre("/home/me/papers/b.pdf")));
    click("keepFirst4");
    settleRemovals();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/papers/b.pdf"));
    EXPECT_THAT(seenTexts(), Contains("1 sets · 6 MB recoverable"));
    EXPECT_THAT(seenTexts(), Not(Contains("/home/me/papers/a.pdf")));
    EXPECT_THAT(seenTexts(), Contains("Moved to the Trash"));
}

TEST_F(DuplicatesWindow, doubleClickIsOneClick) {
    openFilled();
    const QQuickItem* button = find("keepFirst0");
    const QPointF place = button->mapToScene(QPointF(button->width() / 2, button->height() / 2));
    QTest::mouseClick(&window(), Qt::LeftButton, {}, place.toPoint());
    // As on the screen: the frame after the first click shows the next set in its place.
    settle();
    for (const QEvent::Type type :
         {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        const bool released = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, window().mapToGlobal(place), Qt::LeftButton,
                          released ? Qt::NoButton : Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &event);
    }
    settleRemovals();
    EXPECT_THAT(model().duplicates().groups(), testing::SizeIs(1));
}

TEST_F(DuplicatesWindow, lastSetLeavesTheEmptyState) {
    openFilled();
    click("keepFirst0");
    click("keepFirst0");
    settleRemovals();
    EXPECT_THAT(seenTexts(), Contains("No duplicates"));
    EXPECT_THAT(seenTexts(), Contains("identical files"));
    click("findAgain");
    runUntil([this] { return duplicates().results(); });
    settle();
    EXPECT_THAT(seenTexts(), Contains("No duplicates"));
    fakes::addFilled(machine, "/home/me/papers/c.pdf", 'p');
    click("findAgain");
    runUntil([this] { return duplicates().results(); });
    settle();
    EXPECT_THAT(seenTexts(), Contains("/home/me/papers/c.pdf"));
}

TEST_F(DuplicatesWindow, keysPressTheButtonOfTheRow) {
    openFilled();
    tabTo("duplicateList");
    EXPECT_EQ(current(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(ElementsAre("/home/me/copies/film 2.mov")));
    press(Qt::Key_Up);
    press(Qt::Key_Space);
    settleRemovals();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/copies/film 3.mov", "/home/me/copies/film.mov"));
    EXPECT_TRUE(hasKeyboard("duplicateList"));
    EXPECT_EQ(current(), 0) << "the set below has moved up";
    EXPECT_THAT(seenTexts(), Contains("/home/me/papers/a.pdf"));
}

TEST_F(DuplicatesWindow, heldKeyPressesOnce) {
    openFilled();
    tabTo("duplicateList");
    press(Qt::Key_Home);
    for (const bool again : {false, true, true}) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, {}, {}, again);
        QCoreApplication::sendEvent(&window(), &down);
    }
    settleRemovals();
    EXPECT_THAT(model().duplicates().groups(), testing::SizeIs(1));
}

TEST_F(DuplicatesWindow, keyDoesNothingToARowThatNobodyChose) {
    openFilled();
    list().forceActiveFocus(Qt::OtherFocusReason);
    press(Qt::Key_Return);
    settleRemovals();
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(DuplicatesWindow, keyboardIsNotLostWithTheLastSet) {
    openFilled();
    tabTo("duplicateList");
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    settleRemovals();
    EXPECT_TRUE(duplicates().nothing());
    EXPECT_TRUE(hasKeyboard("findAgain"));
}

TEST_F(DuplicatesWindow, rowsAreReadOutWithTheirButtons) {
    const TextsOf texts(desktopLinux);
    openFilled();
    Strings names = namesInside(&list());
    // A button and what is in it have one name.
    names.erase(std::unique(names.begin(), names.end()), names.end());
    const Strings expected{"3 copies · 3 MB each, save 6 MB",  "Keep first, trash rest: film 2.mov",
                           "keep, /home/me/copies/film 2.mov", "Reveal in Files: film 2.mov",
                           "dup, /home/me/copies/film 3.mov",  "Reveal in Files: film 3.mov",
                           "dup, /home/me/copies/film.mov",    "Reveal in Files: film.mov",
                           "2 copies · 2 MB each, save 2 MB",  "Keep first, trash rest: a.pdf",
                           "keep, /home/me/papers/a.pdf",      "Reveal in Files: a.pdf",
                           "dup, /home/me/papers/b.pdf",       "Reveal in Files: b.pdf"};
    EXPECT_EQ(names, expected);
    expectAllControlsNamed();
}

TEST_F(DuplicatesWindow, undoBringsTheSetBack) {
    openFilled();
    click("keepFirst0");
    settleRemovals();
    click("undoRemoval");
    runUntil([this] { return !model().removalUndo().underWay(); });
    settle();
    EXPECT_THAT(seenTexts(), Contains("2 sets · 8 MB recoverable"));
    EXPECT_THAT(seenTexts(), Contains("2 items were restored."));
}

TEST_F(DuplicatesWindow, undoLeavesTheCurrentRowInSight) {
    for (int copy = 0; copy < 40; ++copy)
        fakes::addFilled(machine, "/home/me/c/" + std::to_string(copy), 'c', 2'950'000);
    openFilled({900, 500});
    list().forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    settleRemovals();
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    settle();
    settle();  // the rows have their places now
    ASSERT_TRUE(list().hasActiveFocus());
    const auto* row = list().property("currentItem").value<QQuickItem*>();
    ASSERT_NE(row, nullptr);
    const QRectF box = row->mapRectToItem(&list(), QRectF({}, row->size()));
    EXPECT_TRUE(QRectF({}, list().size()).intersects(box));
}

TEST_F(DuplicatesWindow, makesOnlyTheRowsInView) {
    openFilled();
    addMany(5'000);
    settle();
    EXPECT_EQ(list().property("count").toInt(), 15'000);
    const auto made = [this] {
        return static_cast<int>(list().property("contentItem").value<QQuickItem*>()->childItems().size());
    };
    EXPECT_LT(made(), 80);
    tabTo("duplicateList");
    for (int page = 0; page < 40; ++page) press(Qt::Key_PageDown);
    press(Qt::Key_End);
    EXPECT_EQ(current(), 14'999);
    EXPECT_LT(made(), 120);
    EXPECT_THAT(seenTexts(), Contains("/home/me/14999/b"));
}

TEST_F(DuplicatesWindow, elidesLongPathsInTheMiddle) {
    const std::string folder = "/home/me/" + std::string(300, 'd');
    for (const char* name : {"/first.mov", "/second.mov"}) fakes::addFilled(machine, folder + name, 'x');
    openSearched({726, 600});
    QQuickItem* path = showing((folder + "/first.mov").c_str());
    ASSERT_NE(path, nullptr);
    EXPECT_TRUE(path->property("truncated").toBool());
    EXPECT_EQ(path->property("elide").toInt(), static_cast<int>(Qt::ElideMiddle));
}

TEST_F(DuplicatesWindow, hasRoomForLargeTexts) {
    for (int copy = 0; copy < 40; ++copy)
        fakes::addFilled(machine, "/home/me/c/" + std::to_string(copy), 'c', 2'950'000);
    for (const QSize size : {QSize(960 - 234, 620), QSize(960 - 60, 620), QSize(1400, 900)}) {
        for (const auto appearance : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
            model().setAppearance(appearance);
            openFilled(size);
            for (const double scale : {1.0, 1.5}) {
                singleton<TextScale>("TextScale").setFactor(scale);
                settle();
                expectNoTextClipped();
            }
            singleton<TextScale>("TextScale").setFactor(1);
        }
    }
}

}  // namespace zelk
