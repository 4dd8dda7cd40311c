// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/EndRequest.h"
#include "platform/Storage.h"
#include "reclaim/ReclaimCatalogue.h"
#include "scan/ScanEngine.h"
#include "state/SurveyRecord.h"

namespace zelk::cli {

/// What changed since the last survey of the same roots that the application recorded.
struct Growth {
    TimePoint since = 0;
    std::int64_t totalBefore = 0;  ///< bytes
    FolderChanges changes;
};

/// A finished survey, and everything that is told of it.
struct Survey {
    NodeRef tree;  ///< the synthetic top node
    ScanStats stats;
    ScanInsights insights;
    std::vector<Reclaimable> reclaimables;
    std::optional<Growth> growth;
    ScanPhases phases;
    double classify = 0;  ///< seconds
    TimePoint date = 0;   ///< of its end
};

/// The roots as the application would name them, so that places in the home folder and records of the history are
/// recognised: absolute, normalized, each once. `folder` is the working directory. Only a root with ".." is resolved on
/// the disk.
std::vector<std::string> namedRoots(const std::vector<std::string>& roots, const std::string& folder);

/// Why the first of these roots that is no readable folder cannot be surveyed, as a sentence; absent if all can.
std::optional<std::string> whyNot(const Storage& storage, const std::vector<std::string>& roots);

/// The progress of the walk. Called on the thread that runs the survey.
using ToldProgress = std::function<void(const update::Progress&)>;

/// Surveys the roots and classifies what was found. Absent if a signal asked to end: threads of the scan may then still
/// use the services. Writes nothing. Main thread.
std::optional<Survey> runSurvey(const Storage& storage, const std::vector<std::string>& roots, EndRequest& end,
                                const ToldProgress& told);

/// What changed since the last record of the same roots, which are those folders of a record that lie in no other of
/// it. Absent if there is none.
std::optional<Growth> growthSince(const std::vector<SurveyRecord>& history, const FSNode& tree);

}  // namespace zelk::cli
