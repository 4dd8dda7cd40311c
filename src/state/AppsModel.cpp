// SPDX-License-Identifier: MIT
#include "state/AppsModel.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "scan/ScanEngine.h"
#include "state/ReleaseElsewhere.h"
#include "system/apps/ApplicationList.h"

namespace zelk {

namespace {

void sortBySize(std::vector<AppEntry>& apps, bool withData) {
    const auto bytes = [withData](const AppEntry& app) { return app.size + (withData ? app.dataTotal : 0); };
    std::stable_sort(apps.begin(), apps.end(),
                     [&](const AppEntry& a, const AppEntry& b) { return bytes(a) > bytes(b); });
}

auto hasUrl(const std::string& url) {
    return [&url](const AppEntry& app) { return app.url == url; };
}

}  // namespace

AppsModel::AppsModel(const Platform& platform, RemovalsModel& removals, RemovalUndo& undo,
                     MainThreadQueue::Sender mainThread)
    : platform_(platform), removals_(removals), undo_(undo), mainThread_(std::move(mainThread)) {}

AppsModel::~AppsModel() {
    if (queue_) releaseElsewhere(platform_.tasks, queue_->terminate());
}

void AppsModel::setSort(Sort sort) {
    if (sort == sort_) return;
    sort_ = sort;
    emit sortChanged();
}

std::vector<AppEntry> AppsModel::sortedApps() const {
    std::vector<AppEntry> sorted = apps_;
    sortBySize(sorted, sort_ == Sort::footprint);
    return sorted;
}

void AppsModel::scanApps() {
    const bool isFirst = !std::exchange(hasScanned_, true);
    const bool begins = apps_.empty() && !loading_;
    loading_ = loading_ || begins;
    if (isFirst) emit hasScannedChanged();
    if (!begins) return;
    left_.clear();
    ++scan_;
    emit loadingChanged();
    platform_.system == SystemKind::macOS ? scanBundles() : listInstalled();
}

void AppsModel::scanBundles() {
    queue_ = std::make_shared<UpdateQueue>();
    queue_->setWakeReader([this, mainThread = mainThread_] { mainThread.post([this] { takeUpdates(); }); });
    ScanEngine(platform_.directories, platform_.clock, platform_.locations.trashPlaces())
        .start(queue_, {bundlesFolder});
}

/// Only the last update counts: the bundles are known when all are measured.
void AppsModel::takeUpdates() {
    for (ScanUpdate& one : queue_->takeAll().updates) {
        auto* finished = std::get_if<update::Finished>(&one);
        if (finished == nullptr) continue;
        auto read = [this, scan = scan_, mainThread = mainThread_, &files = platform_.files,
                     tree = std::move(finished->root)] {
            mainThread.post([this, scan, apps = bundlesIn(*tree, files)] { takeApps(scan, apps); });
        };
        platform_.tasks.run(TaskPriority::userInitiated, std::move(read));
    }
}

void AppsModel::listInstalled() {
    // Apart, because a tool may stall.
    auto list = [this, scan = scan_, mainThread = mainThread_, platform = platform_] {
        mainThread.post([this, scan, apps = listApplications(platform)] { takeApps(scan, apps); });
    };
    platform_.tasks.runApart(TaskPriority::userInitiated, std::move(list));
}

void AppsModel::takeApps(int scan, std::vector<AppEntry> apps) {
    if (scan != scan_) return;
    apps_ = std::move(apps);
    loading_ = false;
    auto measure = [this, scan, mainThread = mainThread_, leftovers = Leftovers(platform_), list = apps_]() mutable {
        for (AppEntry& app : list) app.dataTotal = leftovers.dataSize(app);
        mainThread.post([this, scan, list = std::move(list)] { takeFootprints(scan, list); });
    };
    emit appsChanged();
    emit loadingChanged();
    platform_.tasks.run(TaskPriority::utility, std::move(measure));
}

/// What left the list meanwhile does not come back, nor does a list before this one.
void AppsModel::takeFootprints(int scan, std::vector<AppEntry> apps) {
    if (scan != scan_) return;
    std::erase_if(apps, [this](const AppEntry& app) { return left_.contains(app.url); });
    apps_ = std::move(apps);
    emit appsChanged();
}

void AppsModel::uninstall(const AppEntry& app, const std::vector<Leftover>& leftovers) {
    if (!removing_.insert(app.url).second) return;
    emit removingChanged();
    forgetEnding();
    auto work = [this, mainThread = mainThread_, platform = platform_, app, leftovers,
                 removal = removals_.begin(1 + leftovers.size())] {
        mainThread.post([this, done = removeAll(platform, app, leftovers, *removal)] { finish(done); });
    };
    // Apart, because a question for an administrator may stay open for hours.
    platform_.tasks.runApart(TaskPriority::userInitiated, std::move(work));
}

AppsModel::Done AppsModel::removeAll(const Platform& platform, const AppEntry& app,
                                     const std::vector<Leftover>& leftovers, Removal& removal) {
    Done done;
    done.app = app;
    done.begun = removal.mayBegin();
    if (done.begun) {
        done.removal = removeApplication(platform, app);
        removal.noteDone();
    } else {
        removal.noteSkipped();
    }
    const bool isMac = platform.system == SystemKind::macOS;
    const bool isGone = done.begun && done.removal.outcome == AppRemoval::Outcome::gone;
    done.leavesList = done.begun && (isMac || isGone || !isInstalled(platform, app));
    for (const Leftover& leftover : leftovers) {
        if (!removal.mayBegin() || !(isGone || isMac)) {
            removal.noteSkipped();
            ++done.stayed;
            continue;
        }
        TrashResult result = trashLeftover(platform, leftover.url);
        removal.noteDone();
        if (!result.failure) {
            ++done.moved;
            if (result.item) done.leftovers.push_back(std::move(*result.item));
        } else if (platform.files.properties(leftover.url)) {
            ++done.stayed;  // and not taken along by the tool
        }
    }
    return done;
}

void AppsModel::finish(const Done& done) {
    removing_.erase(done.app.url);
    const bool isGone = done.removal.outcome == AppRemoval::Outcome::gone;
    const bool tells = platform_.system != SystemKind::macOS && done.begun &&
                       (!isGone || !goesToTrash(done.app.kind) || done.stayed > 0);
    if (done.leavesList) {
        left_.insert(done.app.url);
        std::erase_if(apps_, hasUrl(done.app.url));
        emit appsChanged();
    }
    emit removingChanged();
    if (tells) {
        ending_ = Ending{done.app, done.removal, done.moved, done.stayed};
        emit endingChanged();
    }
    if (goesToTrash(done.app.kind)) offerUndo(done);
}

/// Only where the application itself can come back: what it kept is of no use without it.
void AppsModel::offerUndo(const Done& done) {
    const bool isGone = done.begun && done.removal.outcome == AppRemoval::Outcome::gone;
    std::vector<RemovalUndo::Item> items;
    // Called by an object of the same owner, while both exist.
    if (done.removal.trashed) items.push_back({*done.removal.trashed, [this, app = done.app] { return putBack(app); }});
    for (const TrashedItem& leftover : done.leftovers) items.push_back({leftover, [] { return true; }});
    undo_.offer(RemovalUndo::Source::applications, done.moved + (isGone ? 1 : 0), std::move(items));
}

bool AppsModel::putBack(const AppEntry& app) {
    left_.erase(app.url);
    if (std::none_of(apps_.begin(), apps_.end(), hasUrl(app.url))) {
        apps_.push_back(app);
        sortBySize(apps_, false);
        emit appsChanged();
    }
    return true;
}

void AppsModel::forgetEnding() {
    if (!ending_) return;
    ending_.reset();
    emit endingChanged();
}

void AppsModel::prepare(const AppEntry& app, std::function<void(const Preparation&)> done) {
    platform_.tasks.runApart(
        TaskPriority::userInitiated, [mainThread = mainThread_, platform = platform_, app, done = std::move(done)] {
            Preparation preparation{Leftovers(platform).of(app), obstacleNow(platform, app), sizeNow(platform, app)};
            mainThread.post([done, preparation = std::move(preparation)] { done(preparation); });
        });
}

std::optional<std::string> AppsModel::toldHome() const {
    if (platform_.system == SystemKind::macOS) return std::nullopt;
    return platform_.locations.home();
}

std::vector<std::string> AppsModel::leftoverCandidates(const AppEntry& app) const {
    return Leftovers(platform_).candidates(app);
}

std::vector<Leftover> AppsModel::leftoversFor(const AppEntry& app) const {
    return Leftovers(platform_).of(app);
}

std::uint64_t AppsModel::dataSize(const AppEntry& app) const {
    return Leftovers(platform_).dataSize(app);
}

std::string_view rawValue(AppsModel::Sort sort) {
    return sort == AppsModel::Sort::bundle ? "App size" : "Total footprint";
}

}  // namespace zelk

#include "moc_AppsModel.cpp"
