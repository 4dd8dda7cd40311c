// SPDX-License-Identifier: MIT
#include "cli/Survey.h"

#include <stdlib.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <memory>
#include <system_error>
#include <utility>
#include <variant>

#include "cli/VisibleText.h"
#include "platform/FolderPath.h"
#include "platform/Thread.h"
#include "reclaim/ReclaimClassifier.h"
#include "scan/ParallelWalker.h"
#include "state/SurveyHistory.h"

namespace zelk::cli {

namespace {

bool goesUp(const std::string& path) {
    return (path + '/').find("/../") != std::string::npos;
}

/// The walk, on a thread of its own where one can be started.
struct Walk {
    std::shared_ptr<UpdateQueue> queue = std::make_shared<UpdateQueue>();
    ScanPhases phases;
    std::atomic<bool> isOver = false;
};

void startWalk(const std::shared_ptr<Walk>& walk, const Storage& storage, const std::vector<std::string>& roots,
               EndRequest& end) {
    auto body = [walk, &end, roots,
                 engine = ScanEngine(storage.directories, storage.clock, storage.locations.trashPlaces())]() mutable {
        walk->phases = engine.runHere(walk->queue, roots);
        walk->isOver = true;
        end.wake();
    };
    try {
        startThread("zelk.scan", ParallelWalker::stackBytes, body);
    } catch (const std::system_error&) {
        body();
    }
}

/// Takes what was found out of the queue.
void takeUpdates(Walk& walk, Survey& survey, const ToldProgress& told) {
    std::optional<update::Progress> last;
    for (ScanUpdate& one : walk.queue->takeAll().updates) {
        if (auto* const progress = std::get_if<update::Progress>(&one)) {
            last = std::move(*progress);
        } else if (auto* const found = std::get_if<update::Insights>(&one)) {
            survey.insights = std::move(found->insights);
        } else if (auto* const finished = std::get_if<update::Finished>(&one)) {
            survey.tree = std::move(finished->root);
            survey.stats = std::move(finished->stats);
        }
    }
    if (last) told(*last);
}

/// The folders that lie in no other.
std::vector<std::string> outermost(const SizeByPath& folders) {
    std::vector<std::string> outer;
    for (const auto& [path, size] : folders) {
        bool isInside = false;
        for (std::string above = path; !isInside && above.size() > 1;) {
            above.resize(std::max<std::size_t>(above.rfind('/') + 1, 1));
            if (above.size() > 1) above.pop_back();
            isInside = folders.contains(above);
        }
        if (!isInside) outer.push_back(path);
    }
    return outer;
}

}  // namespace

std::vector<std::string> namedRoots(const std::vector<std::string>& roots, const std::string& folder) {
    std::vector<std::string> named;
    for (const std::string& root : roots) {
        std::string path = normalFolder(root.starts_with('/') ? root : pathIn(folder, root));
        if (goesUp(path)) {
            const std::unique_ptr<char, decltype(&::free)> resolved(::realpath(path.c_str(), nullptr), &::free);
            if (resolved) path = resolved.get();
        }
        if (std::find(named.begin(), named.end(), path) == named.end()) named.push_back(std::move(path));
    }
    return named;
}

std::optional<std::string> whyNot(const Storage& storage, const std::vector<std::string>& roots) {
    for (const std::string& root : roots) {
        const bool isTooLong = root.size() > FSNode::maximumNameLength;
        if (!isTooLong && storage.directories.status(root) && storage.directories.openRoot(root)) continue;
        const int error = isTooLong ? ENAMETOOLONG : storage.files.tryOpen(root);
        return visibleText(root) +
               (error != 0 ? " cannot be surveyed: " + std::generic_category().message(error) + "." : " is no folder.");
    }
    return std::nullopt;
}

std::optional<Survey> runSurvey(const Storage& storage, const std::vector<std::string>& roots, EndRequest& end,
                                const ToldProgress& told) {
    Survey survey;
    const auto walk = std::make_shared<Walk>();
    walk->queue->setWakeReader([&end] { end.wake(); });
    startWalk(walk, storage, roots, end);
    while (!walk->isOver) {
        end.wait();
        if (end.signal() != 0) {
            walk->queue->terminate();
            return std::nullopt;
        }
        takeUpdates(*walk, survey, told);
    }
    takeUpdates(*walk, survey, told);
    survey.phases = walk->phases;

    const double start = storage.clock.monotonic();
    ReclaimClassifier(storage.files, ReclaimPlaces::of(storage.locations))
        .collect(*survey.tree, storage.locations.home(), survey.reclaimables);
    survey.classify = storage.clock.monotonic() - start;
    survey.growth = growthSince(SurveyHistory(storage.files, storage.locations).load(), *survey.tree);
    survey.date = storage.clock.now();
    if (end.signal() != 0) return std::nullopt;
    return survey;
}

std::optional<Growth> growthSince(const std::vector<SurveyRecord>& history, const FSNode& tree) {
    if (history.empty()) return std::nullopt;
    SurveyRecord now;
    now.folders = recordedFolders(tree);
    const std::vector<std::string> roots = outermost(*now.folders);
    if (roots.empty()) return std::nullopt;
    const auto last = std::find_if(history.rbegin(), history.rend(), [&](const SurveyRecord& record) {
        return record.folders && outermost(*record.folders) == roots;
    });
    if (last == history.rend()) return std::nullopt;
    return Growth{last->date, last->totalScanned, *folderChanges({*last, std::move(now)})};
}

}  // namespace zelk::cli
