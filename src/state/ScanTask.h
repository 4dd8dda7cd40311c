// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "scan/CancelFlag.h"
#include "scan/UpdateQueue.h"
#include "state/AppModel.h"

namespace zelk {

/// The reading of one survey. The model holds the one at hand; a call that comes back for another one is late and means
/// nothing.
///
///     updates arrive ──Finished──> `before` is set: the classifier reads the new tree
///                    ──its items──> the record is being kept, the tree still read
///                    ──history──> `before` is empty, `counts` is true: the survey can no longer be withdrawn
struct AppModel::ScanTask {
    /// What the survey before left, for a cancel to put back.
    struct Before {
        NodeRef root;
        std::optional<ScanStats> stats;
    };

    std::shared_ptr<UpdateQueue> queue = std::make_shared<UpdateQueue>();
    bool reading = false;  ///< a batch is being worked through, perhaps under an event loop inside a handler
    std::optional<Before> before;
    bool counts = false;
    /// Shared with the task that keeps the record, which may be at it when the survey is withdrawn.
    std::shared_ptr<CancelFlag> cancelled = std::make_shared<CancelFlag>();
    bool again = false;             ///< another one follows it
    bool treeIsRead = false;        ///< by the classifier, or for the record
    std::vector<NodeRef> removals;  ///< taken out of the tree as soon as no other thread reads it
    // What went to the Trash while it ran: the walk may have come by before. A folder is forgotten here when it has
    // been taken out of the tree.
    std::set<std::string> trashedFiles;
    std::set<std::string> trashedFolders;
};

}  // namespace zelk
