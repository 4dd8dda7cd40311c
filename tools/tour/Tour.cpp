// SPDX-License-Identifier: MIT
#include "Tour.h"

#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <map>

#include "Camera.h"
#include "platform/Preferences.h"
#include "platform/Workspace.h"
#include "ui/components/ScreenLook.h"
#include "ui/navigation/SidebarModel.h"
#include "ui/reclaim/ReclaimScreenModel.h"
#include "ui/survey/SurveyScreenModel.h"
#include "ui/theme/Motion.h"
#include "ui/theme/TextScale.h"

namespace zelk::tour {

namespace {

// Behind the second report of a survey's progress, so that the picture has figures.
constexpr std::int64_t midScanEntries = 60'000;
constexpr double largeText = 1.5;
constexpr QSize leastSize(960, 620);

// The entries of the menu of the categories.
constexpr int allOfThem = 0;
constexpr int noneOfThem = 2;

const QString scanButton = QStringLiteral("scanButton");

/// As at the first start of all. What is answered is forgotten with it.
class NothingAnswered : public Preferences {
public:
    bool flag(const std::string& key) override { return flags_[key]; }
    void setFlag(const std::string& key, bool value) override { flags_[key] = value; }

private:
    std::map<std::string, bool> flags_;
};

/// For pictures only: nothing is opened from here.
class QuietWorkspace : public Workspace {
public:
    std::vector<std::string> runningApplications() override { return {}; }
    void reveal(const std::vector<std::string>&) override {}
    void openURL(const std::string&) override {}
};

bool appears(QQuickWindow& window, const char* name) {
    // What a model brings is laid out with the next frame.
    window.grabWindow();
    return findControl(window, QString::fromLatin1(name)) != nullptr;
}

}  // namespace

Tour::Tour(AppModel& app, PausingDirectories& directories, Pretence& pretence, QString folder, QSize size)
    : app_(app), directories_(directories), pretence_(pretence), folder_(std::move(folder)), size_(size), window_(app) {
    // A picture shows where things come to rest, not a moment on their way.
    window_.motion().setReduced(true);
    window_.window().resize(size);
    window_.show();
    waitUntil([this] { return window_.isUp(); });
}

bool Tour::run() {
    return inTheme(true) && inTheme(false) && nothingFound();
}

void Tour::setTheme(bool dark) {
    app_.setAppearance(dark ? AppModel::Appearance::dark : AppModel::Appearance::light);
    theme_ = dark ? QStringLiteral("dark") : QStringLiteral("light");
}

bool Tour::inTheme(bool dark) {
    setTheme(dark);
    return idle() && heroes() && survey(!dark) && findings() && lens() && changes() && reclaim() && clutter() &&
           sidebarAndMenus() && windows() && firstRun() && smallAndLarge() && focus();
}

/// From the results of the last survey back to the start.
bool Tour::idle() {
    if (!go(Screen::survey)) return false;
    app_.cancelScan();
    return app_.scanPhase() == AppModel::ScanPhase::idle ? picture(QStringLiteral("survey-idle")) : missed("the start");
}

bool Tour::heroes() {
    for (const Screen screen : allScreens) {
        if (screen == Screen::survey) continue;
        if (!go(screen) || !picture(lookOf(screen).title.toLower())) return false;
    }
    return go(Screen::survey);
}

bool Tour::survey(bool withKeyboard) {
    const auto scanning = [this] { return app_.scanPhase() == AppModel::ScanPhase::scanning; };
    const auto stoppedOrOver = [&] { return directories_.paused() || !scanning(); };

    directories_.pauseAfter(0);
    if (withKeyboard) {
        findControl(window_.window(), scanButton)->forceActiveFocus();
        pressKey(window_.window(), Qt::Key_Return);
    } else if (!clickOn(window_.window(), scanButton)) {
        return missed("the scan button");
    }
    waitUntil(stoppedOrOver);
    if (!scanning()) return missed("the beginning of a survey");
    if (!picture(QStringLiteral("survey-beginning"))) return false;

    // On a tree of some size there is a better moment.
    directories_.pauseAfter(midScanEntries);
    waitUntil([&] { return !scanning() || (directories_.paused() && app_.itemsScanned() > 0); });
    if (scanning()) {
        waitUntil([&] { return !scanning() || window_.survey().itemsLine() != QStringLiteral("0 items"); });
        if (!picture(QStringLiteral("survey-scanning"))) return false;
        if (!go(Screen::lens) || !picture(QStringLiteral("lens-scanning")) || !go(Screen::survey)) return false;
    }
    directories_.resume();

    waitUntil([&] { return !scanning(); });
    return app_.scanPhase() == AppModel::ScanPhase::finished || missed("the end of a survey");
}

/// What was found, from the top to the foot.
bool Tour::findings() {
    window_.survey().appear();
    waitUntil([this] { return !app_.trashLoading(); });
    if (!picture(QStringLiteral("survey-finished"))) return false;
    QQuickItem* scroll = findControl(window_.window(), QStringLiteral("surveyScroll"));
    if (scroll == nullptr) return missed("what the survey found");
    for (const QString& part : {QStringLiteral("findings"), QStringLiteral("foot")}) {
        const double end = scroll->property("contentHeight").toReal() - scroll->height();
        scroll->setProperty("contentY", std::min(end, scroll->property("contentY").toReal() + 0.85 * scroll->height()));
        if (!picture(QStringLiteral("survey-") + part)) return false;
    }
    scroll->setProperty("contentY", 0);
    return true;
}

/// The walk into the largest folder, what is ticked on the way, and what a folder is.
bool Tour::lens() {
    if (!go(Screen::lens) || !appears(window_.window(), "lensList")) return missed("the folders");
    QQuickWindow& window = window_.window();
    const auto pressAll = [&](std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) pressKey(window, key);
    };
    if (!clickOn(window, QStringLiteral("lensStartOver")) || !picture(QStringLiteral("lens-results"))) return false;
    findControl(window, QStringLiteral("lensList"))->forceActiveFocus(Qt::TabFocusReason);
    pressAll({Qt::Key_Home, Qt::Key_Return});
    if (!picture(QStringLiteral("lens-drilled"))) return false;
    pressAll({Qt::Key_Space, Qt::Key_Left, Qt::Key_Down, Qt::Key_Space, Qt::Key_Down, Qt::Key_Down, Qt::Key_Space});
    if (!picture(QStringLiteral("lens-ticked"))) return false;
    pressKey(window, Qt::Key_I);
    if (!appears(window, "explanationDone") || !picture(QStringLiteral("lens-explanation")))
        return missed("the explanation of a folder");
    pressKey(window, Qt::Key_Escape);
    if (!clickOn(window, QStringLiteral("lensSelect")) || !appears(window, "lensSelectAll")) return missed("the ticks");
    const bool taken = picture(QStringLiteral("lens-menu"));
    pressKey(window, Qt::Key_Escape);
    return taken && clickOn(window, QStringLiteral("lensStartOver")) && go(Screen::survey);
}

/// Where the survey before this one found other sizes.
bool Tour::changes() {
    TrendsModel& trends = *window_.survey().trends();
    if (!trends.hasChanges()) return true;
    trends.openChanges();
    if (!appears(window_.window(), "changesDone")) return missed("the sheet of changes");
    const bool taken = picture(QStringLiteral("survey-changes"));
    pressKey(window_.window(), Qt::Key_Escape);
    return taken && (!trends.showChanges() || missed("the end of the sheet"));
}

/// Both ways to look at what can be taken back, and a clean-up of it.
bool Tour::reclaim() {
    if (!go(Screen::reclaim) || !picture(QStringLiteral("reclaim-categories"))) return false;
    if (app_.reclaimables().empty()) return go(Screen::survey);  // nothing to show on this disk
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
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Right}) pressKey(window, key);
    if (!picture(QStringLiteral("reclaim-items-open"))) return false;
    if (!clickOn(window, QStringLiteral("safetyInfo"))) return missed("what the grades mean");
    if (!picture(QStringLiteral("reclaim-grades"))) return false;
    pressKey(window, Qt::Key_Escape);
    ItemList& list = *window_.reclaim().items();
    const int age = list.ageDays();
    list.setAgeDays(list.mostAgeDays());
    const bool taken = picture(QStringLiteral("reclaim-items-old"));
    list.setAgeDays(age);
    app_.setAudience(AppModel::Audience::normal);
    return taken;
}

/// The sheet in all its phases: of a clean-up where everything fails, and of one where all goes well.
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
    pretence_.hold();
    pretence_.fail(true);
    if (!clickOn(window, QStringLiteral("confirmCleanup"))) return missed("the confirmation");
    const bool cleaning = picture(QStringLiteral("clean-up-cleaning"));
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
    const bool emptying = picture(QStringLiteral("clean-up-emptying"));
    pretence_.release();
    waitUntil([&] { return appears(window, "cleanupDone"); });
    if (!emptying || !picture(QStringLiteral("clean-up-emptied"))) return false;
    leave("cleanupDone");
    return true;
}

/// A survey of a folder in which there is nothing.
bool Tour::nothingFound() {
    const QTemporaryDir empty;
    app_.setScanRoots({empty.path().toStdString()});
    app_.startScan();
    waitUntil([this] { return app_.scanPhase() != AppModel::ScanPhase::scanning; });
    for (const bool dark : {true, false}) {
        setTheme(dark);
        for (const Screen screen : {Screen::survey, Screen::reclaim, Screen::clutter, Screen::lens})
            if (!go(screen) || !picture(QStringLiteral("nothing-") + lookOf(screen).title.toLower())) return false;
    }
    return true;
}

/// The heaviest files in either order, those of one type, and what can be done to one.
bool Tour::clutter() {
    if (!go(Screen::clutter) || !appears(window_.window(), "clutterList")) return missed("the heaviest files");
    if (!picture(QStringLiteral("clutter-largest"))) return false;
    findControl(window_.window(), QStringLiteral("clutterList"))->forceActiveFocus();
    pressKey(window_.window(), Qt::Key_Home);
    pressKey(window_.window(), Qt::Key_Down);
    pressKey(window_.window(), Qt::Key_Return);
    if (!appears(window_.window(), "trashFile")) return missed("the menu of a file");
    if (!picture(QStringLiteral("clutter-menu"))) return false;
    pressKey(window_.window(), Qt::Key_Escape);
    if (!picture(QStringLiteral("clutter-focus"))) return false;
    const QQuickItem* order = findControl(window_.window(), QStringLiteral("orderPicker"));
    const auto pressOrder = [&](double share) {
        clickAt(window_.window(), order->mapToScene(QPointF(share * order->width(), order->height() / 2)));
    };
    pressOrder(0.75);
    if (!picture(QStringLiteral("clutter-oldest"))) return false;
    pressOrder(0.25);
    if (!clickOn(window_.window(), QStringLiteral("typePill1"))) return missed("a type of files");
    return picture(QStringLiteral("clutter-type")) && clickOn(window_.window(), QStringLiteral("typePill0")) &&
           go(Screen::survey);
}

bool Tour::windows() {
    for (const auto& [id, name] : {std::pair(WindowId::about, "window-about"), std::pair(WindowId::help, "window-help"),
                                   std::pair(WindowId::settings, "window-settings")}) {
        QQuickWindow& window = window_.openWindow(id);
        waitUntil([&] { return window.isExposed(); });
        if (!picture(window, QString::fromLatin1(name))) return false;
        window.close();
    }
    return true;
}

bool Tour::sidebarAndMenus() {
    window_.sidebar().setCollapsed(true);
    if (!picture(QStringLiteral("sidebar-collapsed"))) return false;
    window_.sidebar().setCollapsed(false);
    if (!clickOn(window_.window(), QStringLiteral("menuTitleGo")) || !appears(window_.window(), "menuOverview"))
        return missed("the menu");
    const bool taken = picture(QStringLiteral("menu"));
    pressKey(window_.window(), Qt::Key_Escape);
    return taken;
}

bool Tour::firstRun() {
    NothingAnswered preferences;
    QuietWorkspace workspace;
    WindowServices services;
    services.preferences = &preferences;
    services.workspace = &workspace;
    services.accessGranted = [] { return false; };
    MainWindow first(app_, services);
    first.motion().setReduced(true);
    first.window().resize(size_);
    first.show();
    waitUntil([&] { return first.isUp(); });
    for (int page = 1; appears(first.window(), "primaryButton"); ++page) {
        if (!picture(first.window(), QStringLiteral("welcome-%1").arg(page))) return false;
        if (!clickOn(first.window(), QStringLiteral("primaryButton"))) return missed("a page of the welcome");
    }
    if (!appears(first.window(), "continueButton")) return missed("the question for access");
    return picture(first.window(), QStringLiteral("welcome-access"));
}

bool Tour::smallAndLarge() {
    TextScale& text = window_.textScale();
    bool taken = true;
    const auto resize = [this](QSize size) {
        window_.window().resize(size);
        waitUntil([&] { return window_.window().contentItem()->size() == QSizeF(size); });
    };
    resize(leastSize);
    text.setFactor(largeText);
    for (const Screen screen :
         {Screen::survey, Screen::reclaim, Screen::clutter, Screen::lens, Screen::tools, Screen::settings})
        taken = taken && go(screen) && picture(QStringLiteral("large-text-") + lookOf(screen).title.toLower());
    text.setFactor(1);
    resize(size_);
    return taken && go(Screen::survey);
}

/// Where the keyboard is: around the button, which is where a ring stands out least.
bool Tour::focus() {
    app_.cancelScan();
    findControl(window_.window(), scanButton)->forceActiveFocus(Qt::TabFocusReason);
    return picture(QStringLiteral("survey-focus"));
}

bool Tour::go(Screen screen) {
    const QString row = QStringLiteral("sidebar") + lookOf(screen).title;
    window_.window().grabWindow();
    return (clickOn(window_.window(), row) && app_.selection() == screen) || missed(qPrintable(row));
}

/// Always false.
bool Tour::missed(const char* what) const {
    std::fprintf(stderr, "tour: missed %s in the %s theme\n", what, qPrintable(theme_));
    return false;
}

bool Tour::picture(QQuickWindow& window, const QString& name) {
    restPointer(window);
    const QString file = QDir(folder_).filePath(QStringLiteral("%1-%2.png").arg(name, theme_));
    if (!photograph(window, file)) {
        std::fprintf(stderr, "tour: no picture at %s\n", qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(file));
    std::fflush(stdout);
    return true;
}

}  // namespace zelk::tour
