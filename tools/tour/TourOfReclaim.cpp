// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QQuickItem>
#include <QTemporaryDir>

#include "Camera.h"
#include "Tour.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/shell/QuitQuestion.h"

namespace zelk::tour {

namespace {

// Entries of the category menu.
constexpr int allOfThem = 0;
constexpr int noneOfThem = 2;

// Days: the end of the slider, and more than the age of anything on a disk.
constexpr int mostAgeDays = 180;
constexpr double longAgo = 36'500;
constexpr int cacheBytes = 1 << 20;

}  // namespace

/// Both views of the reclaimable items, and a clean-up.
bool Tour::reclaim() {
    if (!go(Screen::reclaim) || !picture(QStringLiteral("reclaim-categories"))) return false;
    if (app_.reclaimables().empty()) return missing("something to reclaim") && go(Screen::survey);
    if (!clickOn(window_.window(), QStringLiteral("selectMenu"))) return missed("the menu of the categories");
    if (!picture(QStringLiteral("reclaim-menu"))) return false;
    pressKey(window_.window(), Qt::Key_Escape);
    if (!chooseInMenu(noneOfThem) || !picture(QStringLiteral("reclaim-none"))) return false;
    return chooseInMenu(allOfThem) && cleanUp() && items() && go(Screen::survey);
}

bool Tour::chooseInMenu(int entry) {
    if (!appears(window_.window(), "selectMenu") || !clickOn(window_.window(), QStringLiteral("selectMenu")))
        return missed("the menu of the categories");
    for (int at = 0; at <= entry; ++at) pressKey(window_.window(), Qt::Key_Down);
    pressKey(window_.window(), Qt::Key_Return);
    return true;
}

bool Tour::items() {
    QQuickWindow& window = window_.window();
    app_.setAudience(AppModel::Audience::developer);
    if (!appears(window, "itemList")) return missed("the items");
    if (!picture(QStringLiteral("reclaim-items"))) return false;
    findControl(window, QStringLiteral("itemList"))->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, onwardKey()}) pressKey(window, key);
    if (!picture(QStringLiteral("reclaim-items-open"))) return false;
    if (!clickOn(window, QStringLiteral("safetyInfo"))) return missed("what the grades mean");
    if (!picture(QStringLiteral("reclaim-grades"))) return false;
    pressKey(window, Qt::Key_Escape);
    const bool taken = youngItems(*window_.reclaim().items());
    app_.setAudience(AppModel::Audience::normal);
    return taken;
}

/// Items filtered by age, and a filter that leaves none.
bool Tour::youngItems(ItemList& list) {
    const int age = list.ageDays();
    list.setAgeDays(mostAgeDays);
    bool taken = picture(QStringLiteral("reclaim-items-old"));
    list.setAgeDays(age);
    pretence_.goBack(longAgo);
    list.setAgeDays(mostAgeDays);
    taken = taken && (list.allYoung() || missed("nothing that old")) && picture(QStringLiteral("reclaim-items-young"));
    pretence_.goBack(0);
    list.setAgeDays(age);
    return taken;
}

/// Caches of applications, one of which is running, in the folders of a Mac.
bool Tour::keptItem() {
    const QTemporaryDir home;
    const QDir support(home.filePath(QStringLiteral("Library/Application Support")));
    for (const char* folder : {"Code/Cache", "Code/GPUCache", "Notes/Cache"}) {
        QFile file(support.filePath(QLatin1String(folder)) + QStringLiteral("/data"));
        if (!support.mkpath(QLatin1String(folder)) || !file.open(QFile::WriteOnly) ||
            file.write(QByteArray(cacheBytes, 'c')) != cacheBytes)
            return missed("a place for caches");
    }
    surveyOnly(home.path());
    app_.setAudience(AppModel::Audience::developer);
    if (!go(Screen::reclaim) || !appears(window_.window(), "itemList")) return missed("the caches");
    ItemList& list = *window_.reclaim().items();
    list.setAgeDays(0);  // the files were just created
    list.setOpen(0, true);
    // Here only an item in use has a line.
    const auto isKept = [&list](int row) {
        return !list.data(list.index(row), ItemList::lineRole).toString().isEmpty();
    };
    int row = 0;
    while (row < list.rowCount() && !isKept(row)) ++row;
    if (row == list.rowCount()) return missed("an item whose application runs");
    const bool taken = picture(QStringLiteral("reclaim-items-kept"));
    app_.setAudience(AppModel::Audience::normal);
    return taken;
}

/// The clean-up sheet in all phases, once with every item failing and once with success.
bool Tour::cleanUp() {
    QQuickWindow& window = window_.window();
    const auto open = [&] {
        return (clickOn(window, QStringLiteral("reviewButton")) && appears(window, "confirmCleanup")) ||
               missed("the review");
    };
    const auto leave = [&](const char* button) {
        clickOn(window, QString::fromLatin1(button));
        waitUntil([this] { return app_.scanPhase() == AppModel::ScanPhase::finished; });
    };
    if (!open() || !picture(QStringLiteral("clean-up-review"))) return false;
    if (!clickOn(window, QStringLiteral("permanentSwitch"))) return missed("the switch");
    if (!picture(QStringLiteral("clean-up-permanent"))) return false;
    clickOn(window, QStringLiteral("permanentSwitch"));
    // Holds the clean-up half way while the pictures are taken.
    const std::size_t half = window_.reclaim().dryRun()->rows()->items().size() / 2;
    pretence_.hold(half);
    pretence_.fail(true);
    if (!clickOn(window, QStringLiteral("confirmCleanup"))) return missed("the confirmation");
    const QQuickItem* bar = findControl(window, QStringLiteral("cleaningBar"));
    waitUntil([&] { return half == 0 || bar->property("value").toDouble() > 0; });
    bool cleaning = picture(QStringLiteral("clean-up-cleaning"));
    window_.quitQuestion().quit();
    if (!appears(window, "finishFirst")) return missed("the question before the end");
    cleaning = cleaning && picture(QStringLiteral("clean-up-quit"));
    pressKey(window, Qt::Key_Escape);
    pretence_.release();
    waitUntil([&] { return appears(window, "keepInTrash"); });
    if (!cleaning || !picture(QStringLiteral("clean-up-skipped"))) return false;
    leave("keepInTrash");

    pretence_.fail(false);
    if (!chooseInMenu(allOfThem) || !open() || !clickOn(window, QStringLiteral("confirmCleanup"))) return false;
    waitUntil([&] { return appears(window, "keepInTrash"); });
    if (!picture(QStringLiteral("clean-up-done"))) return false;
    pretence_.hold();
    if (!clickOn(window, QStringLiteral("emptyTrash"))) return missed("the emptying");
    bool emptying = picture(QStringLiteral("clean-up-emptying"));
    window_.quitQuestion().quit();
    if (!appears(window, "stopNow") || !clickOn(window, QStringLiteral("stopNow"))) return missed("the stop");
    emptying = emptying && picture(QStringLiteral("clean-up-stopping"));
    pretence_.release();
    waitUntil([&] { return appears(window, "cleanupDone"); });
    if (!emptying || !picture(QStringLiteral("clean-up-emptied"))) return false;
    leave("cleanupDone");
    return true;
}

}  // namespace zelk::tour
