// SPDX-License-Identifier: MIT
#include "Tour.h"

#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <map>

#include "Camera.h"
#include "platform/Preferences.h"
#include "platform/Workspace.h"
#include "ui/controls/NumberItem.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/shell/AppCommands.h"
#include "ui/shell/SidebarModel.h"
#include "ui/theme/Motion.h"
#include "ui/theme/ReadingDirection.h"
#include "ui/theme/ScreenLook.h"
#include "ui/theme/TextScale.h"
#include "wall/Wall.h"

namespace zelk::tour {

namespace {

// After the second progress update of a survey, so that the picture has numbers.
constexpr std::int64_t midScanEntries = 60'000;
// A sample home has some hundred folders.
constexpr std::size_t crowdOfSample = 200;
constexpr int topicsFurther = 4;
constexpr double largeText = 1.5;
constexpr QSize leastSize(960, 620);

const QString scanButton = QStringLiteral("scanButton");

/// As on the first start. Answers are not stored.
class NothingAnswered : public Preferences {
public:
    bool flag(const std::string& key) override { return flags_[key]; }
    void setFlag(const std::string& key, bool value) override { flags_[key] = value; }

private:
    std::map<std::string, bool> flags_;
};

/// Opens nothing, since only pictures are wanted.
class QuietWorkspace : public Workspace {
public:
    std::vector<std::string> runningApplications() override { return {}; }
    void reveal(const std::vector<std::string>&) override {}
    void openURL(const std::string&) override {}
};

}  // namespace

Tour::Tour(AppModel& app, PausingDirectories& directories, PausingContents& contents, Pretence& pretence, TourPlan plan)
    : app_(app),
      directories_(directories),
      contents_(contents),
      pretence_(pretence),
      plan_(std::move(plan)),
      window_(app) {
    app_.setAppearance(plan_.dark ? AppModel::Appearance::dark : AppModel::Appearance::light);
    // Pictures must not show the middle of an animation.
    window_.motion().setReduced(true);
    window_.window().resize(plan_.size);
    window_.show();
    waitUntil([this] { return window_.isUp(); });
}

bool Tour::run() {
    return gallery() && idle() && heroes() && survey() && findings() && trash() && lens() && changes() && reclaim() &&
           clutter() && duplicates() && privacy() && tune() && apps() && health() && system() && roots() &&
           sidebarAndMenus() && windows() && firstRun() && smallAndLarge() && taking() && focus() && keptItem() &&
           nothingFound();
}

bool Tour::gallery() {
    bool taken = false;
    {
        GalleryWall wall(plan_.dark ? ZelkTheme::dark() : ZelkTheme::light(), 1);
        taken = keep(wall.photograph(), QStringLiteral("gallery"));
    }
    window_.window().requestActivate();
    waitUntil([this] { return window_.window().isActive(); });
    return taken;
}

/// Returns from the results of the last survey to the initial state.
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

/// Starts a survey, cancels it, and runs another to the end; with the pointer in one theme and the keyboard in the
/// other.
bool Tour::survey() {
    directories_.pauseAfter(0);
    if (!pressScan(plan_.dark)) return missed("the scan button");
    waitUntil([this] { return directories_.paused() || !scanning(); });
    if (!scanning()) return missed("the beginning of a survey");
    if (!picture(QStringLiteral("survey-beginning")) || !underWay()) return false;

    app_.cancelScan();
    if (!pressScan(plan_.dark)) return missed("the scan button");
    waitUntil([this] { return !scanning(); });
    return app_.scanPhase() == AppModel::ScanPhase::finished || missed("the end of a survey");
}

bool Tour::pressScan(bool withKeyboard) {
    if (!appears(window_.window(), "scanButton")) return false;
    if (!withKeyboard) return clickOn(window_.window(), scanButton);
    findControl(window_.window(), scanButton)->forceActiveFocus();
    pressKey(window_.window(), Qt::Key_Return);
    return true;
}

/// Shows numbers, for which the tree must have some size.
bool Tour::underWay() {
    if (plan_.complete) directories_.crowd(crowdOfSample);
    directories_.pauseAfter(midScanEntries);
    waitUntil([this] { return !scanning() || (directories_.paused() && app_.itemsScanned() > 0); });
    bool taken = true;
    if (scanning()) {
        const auto* items = qobject_cast<NumberItem*>(findControl(window_.window(), QStringLiteral("scannedItems")));
        if (items == nullptr) return missed("the count of items");
        waitUntil([this, items] { return window_.survey().items() > 0 && items->shown() == items->text(); });
        taken = picture(QStringLiteral("survey-scanning"));
        for (const Screen screen : {Screen::reclaim, Screen::lens, Screen::clutter})
            taken = taken && go(screen) && picture(lookOf(screen).title.toLower() + QStringLiteral("-scanning"));
        taken = taken && go(Screen::survey);
    } else {
        taken = missing("a survey under way");
    }
    directories_.crowd(0);
    directories_.resume();
    return taken;
}

/// The results, from top to bottom.
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

/// The Trash banner in all its states.
bool Tour::trash() {
    const auto measure = [this](TrashContents contents, const std::function<bool()>& seen) {
        pretence_.setTrash(contents);
        app_.refreshTrash();
        waitUntil(seen);
    };
    measure(TrashContents::locked, [this] { return !app_.trashAccessible(); });
    // The banner may be out of view; focusing its button scrolls there.
    if (!appears(window_.window(), "trashButton")) return missed("the row of the Trash");
    findControl(window_.window(), QStringLiteral("trashButton"))->forceActiveFocus(Qt::OtherFocusReason);
    if (!picture(QStringLiteral("trash-locked"))) return false;
    measure(TrashContents::none, [this] { return app_.trashAccessible() && app_.trashBytes() == 0; });
    if (!picture(QStringLiteral("trash-empty"))) return false;

    pretence_.hold();
    measure(TrashContents::real, [this] { return app_.trashLoading(); });
    const bool reading = picture(QStringLiteral("trash-reading"));
    pretence_.release();
    waitUntil([this] { return !app_.trashLoading(); });
    if (!reading) return false;
    if (app_.trashBytes() == 0) return missing("something in the Trash");

    pretence_.hold();
    const bool pressed = clickOn(window_.window(), QStringLiteral("trashButton")) && app_.emptyingTrash();
    const bool emptying = pressed && picture(QStringLiteral("trash-emptying"));
    pretence_.release();
    waitUntil([this] { return !app_.emptyingTrash(); });
    findControl(window_.window(), QStringLiteral("surveyScroll"))->setProperty("contentY", 0);
    return emptying || missed("the emptying of the Trash");
}

/// Enters the largest folder, selects folders on the way, and opens an explanation.
bool Tour::lens() {
    if (!go(Screen::lens) || !appears(window_.window(), "lensList")) return missed("the folders");
    QQuickWindow& window = window_.window();
    const auto pressAll = [&](std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) pressKey(window, key);
    };
    if (!clickOn(window, QStringLiteral("lensStartOver")) || !picture(QStringLiteral("lens-results"))) return false;
    QQuickItem* folders = findControl(window, QStringLiteral("lensList"));
    if (folders->property("count").toInt() == 0) return missing("a folder to go into") && go(Screen::survey);
    folders->forceActiveFocus(Qt::TabFocusReason);
    pressAll({Qt::Key_Home, Qt::Key_Return});
    if (!picture(QStringLiteral("lens-drilled"))) return false;
    pressAll({Qt::Key_Space, backKey(), Qt::Key_Down, Qt::Key_Space, Qt::Key_Down, Qt::Key_Down, Qt::Key_Space});
    if (!picture(QStringLiteral("lens-ticked"))) return false;
    pressKey(window, Qt::Key_I);
    if (!appears(window, "explanationDone") || !picture(QStringLiteral("lens-explanation")))
        return missed("the explanation of a folder");
    pressKey(window, Qt::Key_Escape);
    if (!clickOn(window, QStringLiteral("lensSelect")) || !appears(window, "lensSelectAll")) return missed("the ticks");
    const bool taken = picture(QStringLiteral("lens-menu"));
    pressKey(window, Qt::Key_Escape);
    return taken && clickOn(window, QStringLiteral("lensStartOver")) && lensMap() && go(Screen::survey);
}

/// Needs a previous survey with other sizes.
bool Tour::changes() {
    TrendsModel& trends = *window_.survey().trends();
    if (!trends.hasChanges()) return missing("what changed since the last survey");
    trends.openChanges();
    if (!appears(window_.window(), "changesDone")) return missed("the sheet of changes");
    const bool taken = picture(QStringLiteral("survey-changes"));
    pressKey(window_.window(), Qt::Key_Escape);
    return taken && (!trends.showChanges() || missed("the end of the sheet"));
}

/// The large files in both orders, filtered by type, and the context menu.
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
        const double across = readsFromRight() ? 1 - share : share;
        clickAt(window_.window(), order->mapToScene(QPointF(across * order->width(), order->height() / 2)));
    };
    pressOrder(0.75);
    if (!picture(QStringLiteral("clutter-oldest"))) return false;
    pressOrder(0.25);
    if (!clickOn(window_.window(), QStringLiteral("typePill1"))) return missed("a type of files");
    return picture(QStringLiteral("clutter-type")) && clickOn(window_.window(), QStringLiteral("typePill0")) &&
           go(Screen::survey);
}

/// Several scan roots, one with a long name, and none.
bool Tour::roots() {
    const std::vector<std::string> before = app_.scanRoots();
    std::vector<std::string> several = before;
    several.push_back(before.front() + "/Pictures");
    several.push_back("/mnt/A drive with a name as long as some drives have it/" + std::string(120, 'x') + "/Archive");
    app_.setScanRoots(several);
    bool taken = go(Screen::settings) && picture(QStringLiteral("settings-roots"));
    app_.setScanRoots({});
    taken = taken && picture(QStringLiteral("settings-no-roots"));
    app_.setScanRoots(before);
    return taken && go(Screen::survey);
}

bool Tour::windows() {
    for (const auto& [id, name] : {std::pair(WindowId::about, "window-about"), std::pair(WindowId::help, "window-help"),
                                   std::pair(WindowId::settings, "window-settings")}) {
        QQuickWindow& window = window_.openWindow(id);
        waitUntil([&] { return window.isExposed() && window.isActive(); });
        if (!picture(window, QString::fromLatin1(name))) return false;
        if (id == WindowId::help) {
            const QImage first = window.grabWindow();
            for (int topic = 0; topic < topicsFurther; ++topic) pressKey(window, Qt::Key_Down);
            if (window.grabWindow() == first) return missed("another topic of the manual");
            if (!picture(window, QStringLiteral("window-help-topic"))) return false;
        }
        window.close();
    }
    return true;
}

bool Tour::sidebarAndMenus() {
    window_.sidebar().toggleCollapsed();
    if (!picture(QStringLiteral("sidebar-collapsed"))) return false;
    window_.sidebar().toggleCollapsed();
    if (!clickOn(window_.window(), QStringLiteral("menuTitle") + AppCommands::tr("Go"))) return missed("the menu");
    window_.window().grabWindow();
    if (findControl(window_.window(), QStringLiteral("menu") + lookOf(Screen::survey).title) == nullptr)
        return missed("the entries of the menu");
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
    first.window().resize(plan_.size);
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
    for (const Screen screen : {Screen::survey, Screen::reclaim, Screen::privacy, Screen::tune, Screen::clutter,
                                Screen::duplicates, Screen::lens, Screen::tools, Screen::settings})
        taken = taken && go(screen) && picture(QStringLiteral("large-text-") + lookOf(screen).title.toLower());
    app_.setSelection(Screen::system);  // its row in the sidebar is out of sight until then
    taken = taken && picture(QStringLiteral("large-text-system"));
    text.setFactor(1);
    resize(plan_.size);
    return taken && go(Screen::survey);
}

/// The focus ring around the scan button, where it is hardest to see.
bool Tour::focus() {
    app_.cancelScan();
    // Other windows were open since.
    window_.window().requestActivate();
    waitUntil([this] { return window_.window().isActive(); });
    // It may have the focus already, which is no reason to show it.
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) pressKey(window_.window(), key);
    return picture(QStringLiteral("survey-focus"));
}

/// A survey of an empty folder.
bool Tour::nothingFound() {
    const QTemporaryDir empty;
    surveyOnly(empty.path());
    for (const Screen screen : {Screen::survey, Screen::reclaim, Screen::clutter, Screen::lens})
        if (!go(screen) || !picture(QStringLiteral("nothing-") + lookOf(screen).title.toLower())) return false;
    return true;
}

void Tour::surveyOnly(const QString& folder) {
    app_.setScanRoots({folder.toStdString()});
    app_.startScan();
    waitUntil([this] { return !scanning(); });
}

bool Tour::go(Screen screen) {
    const QString row = QStringLiteral("sidebar") + lookOf(screen).title;
    window_.window().grabWindow();
    return (clickOn(window_.window(), row) && app_.selection() == screen) || missed(qPrintable(row));
}

/// Prints a message and returns false.
bool Tour::missed(const char* what) const {
    std::fprintf(stderr, "tour: missed %s in the %s theme\n", what, plan_.dark ? "dark" : "light");
    return false;
}

/// For states that not every disk has: missed() only if the plan is complete.
bool Tour::missing(const char* what) const {
    return !plan_.complete || missed(what);
}

bool Tour::picture(QQuickWindow& window, const QString& name) {
    restPointer(window);
    const QImage picture = window.grabWindow();
    if (plan_.inspect) plan_.inspect(window, name);
    return keep(picture, name);
}

bool Tour::keep(const QImage& picture, const QString& name) const {
    const QString theme = plan_.dark ? QStringLiteral("dark") : QStringLiteral("light");
    const QString file = QDir(plan_.folder).filePath(QStringLiteral("%1-%2.png").arg(name, theme));
    if (!save(picture, file)) {
        std::fprintf(stderr, "tour: no picture at %s\n", qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(file));
    std::fflush(stdout);
    return true;
}

}  // namespace zelk::tour
