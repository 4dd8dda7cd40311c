// SPDX-License-Identifier: MIT
// Measures how long every module, sheet and window takes to open for the first time, and to enter a folder of many
// subfolders in Lens: from the action to the frame that shows the result, in the real window rendered in software.
// Prints the median in milliseconds and as a share of a frame of 16 ms, and by how long the main thread was blocked at
// most in the quarter of a second after that frame, where what was put off would show.
//
//     opening [--rounds N] [--folders N] [--rest MS]
//
// Every round takes a fresh process for each kind of start, which rests before its first action, as people do. The
// folders, items and applications are below $TMPDIR (or /tmp); nothing is removed except by this program at its end.

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Camera.h"
#include "Median.h"
#include "OwnProcess.h"
#include "SampleFiles.h"
#include "platform/NativePlatform.h"
#include "platform/Preferences.h"
#include "state/AppModel.h"
#include "ui/screens/apps/AppsScreenModel.h"
#include "ui/screens/lens/LensScreenModel.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/shell/AppCommands.h"
#include "ui/shell/Application.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/QuitQuestion.h"
#include "ui/theme/Motion.h"
#include "ui/theme/ScreenLook.h"

namespace {

using namespace zelk;

constexpr double frameMilliseconds = 16;
constexpr int afterwards = 250;  // milliseconds

struct Options {
    int rounds = 5;
    int folders = 50'000;
    int rest = 1'500;  // milliseconds
};

double millisecondsOf(const QElapsedTimer& time) {
    return static_cast<double>(time.nsecsElapsed()) / 1e6;
}

/// Handles events for so long. Returns the longest time that this took at once.
double longestBlock(int milliseconds) {
    double longest = 0;
    QElapsedTimer all;
    all.start();
    while (all.elapsed() < milliseconds) {
        QElapsedTimer time;
        time.start();
        QCoreApplication::processEvents();
        longest = std::max(longest, millisecondsOf(time));
        QThread::msleep(1);
    }
    return longest;
}

/// Measures an action that returns the window in which it shows its result, and prints a line for the parent process.
void measureWindow(const std::string& what, const std::function<QQuickWindow&()>& action) {
    QElapsedTimer time;
    time.start();
    QQuickWindow& window = action();
    bool drawn = false;
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window, [&] { drawn = true; },
        static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection));
    window.update();
    while (!drawn) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double took = millisecondsOf(time);
    std::printf("%.3f %.3f %s\n", took, longestBlock(afterwards), what.c_str());
}

/// Ends the process if what was to be measured is not there.
void require(bool there, const char* what) {
    if (there) return;
    std::fprintf(stderr, "opening: missed %s\n", what);
    std::_Exit(EXIT_FAILURE);
}

/// Makes a file that takes up its whole size.
void makeHeavyFile(const std::string& file, std::size_t size) {
    static const std::vector<char> zeros(std::size_t{1} << 20);
    const int opened = ::open(file.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    require(opened >= 0, "a file");
    while (size > 0) {
        const ssize_t written = ::write(opened, zeros.data(), std::min<std::size_t>(zeros.size(), size));
        require(written > 0, "room for a file");
        size -= static_cast<std::size_t>(written);
    }
    ::close(opened);
}

/// The first-run sheets are for a user who has seen none.
class NoPreferences : public Preferences {
public:
    bool flag(const std::string&) override { return false; }
    void setFlag(const std::string&, bool) override {}
};

/// The real window on a home folder, in a process of its own.
class Visit {
public:
    Visit(const std::string& home, int rest) : native_(home), app_(native_.platform()), window_(app_) {
        window_.motion().setReduced(true);
        window_.show();
        tour::waitUntil([&] { return window_.isUp(); });
        longestBlock(rest);
    }

    void survey() {
        app_.startScan();
        tour::waitUntil([&] { return app_.scanPhase() == AppModel::ScanPhase::finished; });
        longestBlock(afterwards);
    }

    void measure(const std::string& what, const std::function<void()>& action) {
        measureWindow(what, [&]() -> QQuickWindow& {
            action();
            return window_.window();
        });
    }

    void open(Screen screen, const char* state) {
        measure(lookOf(screen).title.toStdString() + state, [&] { app_.setSelection(screen); });
    }

    void openAll(const char* state) {
        for (const Screen screen : allScreens)
            if (screen != app_.selection()) open(screen, state);
        open(Screen::survey, ", again");
        open(Screen::lens, ", again");
    }

    void drill() {
        app_.setSelection(Screen::lens);
        LensScreenModel& lens = *control("lensList")->property("lens").value<LensScreenModel*>();
        lens.startOver();
        longestBlock(afterwards);
        const auto isMany = [](const NodeRef& node) { return node && node->name() == "many"; };
        int many = 0;
        while (many < lens.rows()->rowCount() && !isMany(lens.rows()->node(many))) ++many;
        measure("Lens, into many folders", [&] { lens.drill(many); });
        require(lens.place() == QStringLiteral("many"), "the many folders");
        measure("Lens, back from them", [&] { lens.back(); });
        measure("Lens, into them again", [&] { lens.drill(many); });
        measure("Lens, one of them ticked", [&] { lens.toggle(3); });
        measure("Lens, what a folder is", [&] { lens.explain(0); });
        lens.explanation()->close();
    }

    void openSheets() {
        app_.setSelection(Screen::reclaim);
        window_.reclaim().categories()->chooseAll();
        longestBlock(afterwards);
        measure("the review", [&] { window_.reclaim().categories()->review(); });
        require(window_.reclaim().reviewing(), "the review");
        window_.reclaim().dryRun()->close();
        app_.setSelection(Screen::survey);
        longestBlock(afterwards);
        measure("what has changed", [&] { window_.survey().trends()->openChanges(); });
        require(window_.survey().trends()->showChanges(), "the changes");
        window_.survey().trends()->closeChanges();
        app_.setSelection(Screen::apps);
        app_.apps().scanApps();
        tour::waitUntil([&] { return app_.apps().hasScanned() && !app_.apps().loading(); });
        longestBlock(afterwards);
        AppsScreenModel& apps = *control("appList")->parentItem()->property("apps").value<AppsScreenModel*>();
        // Only the first of those that may be removed opens the sheet.
        measure("removing an application", [&] {
            for (int row = 0; row < apps.rows()->rowCount() && !apps.sheet()->isOpen(); ++row) apps.uninstall(row);
        });
        require(apps.sheet()->isOpen(), "the question before an application is removed");
        apps.sheet()->cancel();
        longestBlock(afterwards);
        const auto removal = app_.removals().begin(1);
        measure("quitting meanwhile", [&] { window_.quitQuestion().quit(); });
        require(window_.quitQuestion().asking(), "the question before the end");
        window_.quitQuestion().cancel();
        longestBlock(afterwards);
    }

    void openWindows() {
        for (const auto& [id, name] : {std::pair(WindowId::settings, "the settings' window"),
                                       std::pair(WindowId::help, "the manual"), std::pair(WindowId::about, "About")})
            measureWindow(name, [&, opened = id]() -> QQuickWindow& { return window_.openWindow(opened); });
    }

    NativePlatform& native() { return native_; }

private:
    QQuickItem* control(const char* name) {
        tour::waitUntil([&] { return tour::findControl(window_.window(), QString::fromLatin1(name)) != nullptr; });
        return tour::findControl(window_.window(), QString::fromLatin1(name));
    }

    NativePlatform native_;
    AppModel app_;
    MainWindow window_;
};

void measureFirstRun(const std::string& home) {
    NativePlatform native(home);
    AppModel app(native.platform());
    NoPreferences preferences;
    WindowServices services;
    services.preferences = &preferences;
    services.workspace = &native.platform().workspace;
    services.accessGranted = [] { return false; };
    MainWindow window(app, services);
    window.motion().setReduced(true);
    window.show();
    tour::waitUntil([&] { return window.isUp(); });
    longestBlock(afterwards);
    const auto press = [&]() -> QQuickWindow& {
        QMetaObject::invokeMethod(tour::findControl(window.window(), QStringLiteral("primaryButton")), "clicked");
        return window.window();
    };
    measureWindow("the welcome's second page", press);
    const auto skip = [&]() -> QQuickWindow& {
        QMetaObject::invokeMethod(tour::findControl(window.window(), QStringLiteral("skipButton")), "clicked");
        return window.window();
    };
    measureWindow("the request for access", skip);
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

/// Shows one kind of start and prints what it took.
[[noreturn]] void visit(int& argc, char** argv) {
    const std::string kind = argv[2];
    const std::string home = argv[3];
    QApplication application(argc, argv);
    dressApplication();
    if (kind == "first") measureFirstRun(home);
    const std::string grown = home + "/films/new";
    std::filesystem::remove(grown);
    Visit visit(home, std::atoi(argv[4]));
    if (kind == "bare") {
        visit.openAll(", before a survey");
    } else {
        visit.survey();
        makeHeavyFile(grown, 60'000'000);
        visit.survey();
        if (kind == "surveyed") visit.openAll(", after a survey");
        if (kind == "sheets") {
            visit.drill();
            visit.openSheets();
            visit.openWindows();
        }
    }
    std::fflush(stdout);
    visit.native().drain(2);
    std::_Exit(EXIT_SUCCESS);
}

struct Figures {
    std::vector<double> toFrame;
    std::vector<double> after;
};

/// Figures by what was measured, in the order in which that was first measured.
class Table {
public:
    void add(const std::string& output) {
        std::istringstream lines(output);
        for (std::string line; std::getline(lines, line);) {
            double toFrame = 0;
            double after = 0;
            int name = 0;
            if (std::sscanf(line.c_str(), "%lf %lf %n", &toFrame, &after, &name) != 2) continue;
            Figures& figures = figuresOf(line.substr(static_cast<std::size_t>(name)));
            figures.toFrame.push_back(toFrame);
            figures.after.push_back(after);
        }
    }

    void print() const {
        for (const auto& [what, figures] : rows_) {
            const double median = bench::medianOf(figures.toFrame);
            std::printf("%-28s %6.1f ms  %5.2f of a frame, at worst %6.1f ms; then %5.1f ms\n", what.c_str(), median,
                        median / frameMilliseconds, *std::max_element(figures.toFrame.begin(), figures.toFrame.end()),
                        bench::medianOf(figures.after));
        }
    }

private:
    Figures& figuresOf(const std::string& what) {
        const auto isIt = [&](const auto& row) { return row.first == what; };
        const auto found = std::find_if(rows_.begin(), rows_.end(), isIt);
        return found != rows_.end() ? found->second : rows_.emplace_back(what, Figures()).second;
    }

    std::vector<std::pair<std::string, Figures>> rows_;
};

int measureAll(const Options& options) {
    const QTemporaryDir home;
    const std::filesystem::path root = home.path().toStdString();
    for (int number = 0; number < options.folders; ++number)
        bench::makeFile(root / "many" / ("folder " + std::to_string(number)) / "file", "x",
                        1'000 + static_cast<std::uintmax_t>(number) * 7'919 % 100'000);
    bench::makeItems(root, 200);
    bench::makeSets(root, 50);
    bench::makeApps(root, 50);
    qputenv("HOME", home.path().toUtf8());

    Table table;
    for (int round = 0; round < options.rounds; ++round)
        for (const char* kind : {"bare", "surveyed", "sheets", "first"}) {
            const auto output = bench::outputOfOwn({"--visit", kind, root.string(), std::to_string(options.rest)});
            if (!output) {
                std::fprintf(stderr, "opening: no %s window\n", kind);
                return 1;
            }
            table.add(*output);
        }
    table.print();
    return 0;
}

bool takeOptions(int argc, char** argv, Options& options) {
    const std::map<std::string, int*> places{
        {"--rounds", &options.rounds}, {"--folders", &options.folders}, {"--rest", &options.rest}};
    for (int at = 1; at < argc; at += 2) {
        const auto place = places.find(argv[at]);
        if (place == places.end() || at + 1 == argc || (*place->second = std::atoi(argv[at + 1])) < 1) return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");  // a frame is drawn at once
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) qunsetenv(name);
    if (argc == 5 && std::string(argv[1]) == "--visit") visit(argc, argv);
    Options options;
    if (!takeOptions(argc, argv, options)) {
        std::fprintf(stderr, "usage: opening [--rounds N] [--folders N] [--rest MS]\n");
        return 2;
    }
    return measureAll(options);
}
