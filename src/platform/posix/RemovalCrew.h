// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/posix/RemovalHelpers.h"
#include "platform/posix/TreeRemover.h"

namespace zelk {

/// Removes one item, with helpers if it is large. Whoever has nothing to do is given half of the highest level of
/// folders of somebody who asks, so that one thread ends with the others whatever the shape of the tree. A remover that
/// has to wait for folders it gave away costs no thread, only its permit.
///
/// Every share has a place in the order in which one thread alone would remove: a failure stops what comes after it and
/// nothing before it. So whatever one thread would have removed is removed, and the failure that is reported is the
/// one that it would have met; of what comes after it, others may have removed something by then.
class RemovalCrew : private FellowRemovers {
public:
    struct Size {
        std::size_t helpers = RemovalHelpers::usualMost();
        std::size_t large = 512;  ///< so many entries one thread removes before it asks for help
    };

    /// `parent` must stay open while this exists.
    RemovalCrew(int parent, const std::string& item, Size size);

    /// Call once. Returns when nobody works at the item any more.
    Failure run();

private:
    struct Job : TreeRemover {
        using TreeRemover::TreeRemover;

        Job* giver = nullptr;   ///< whose folders these are
        std::size_t level = 0;  ///< the giver's level that they are from
        std::list<Job>::iterator place;
        std::map<std::size_t, std::size_t> away;  ///< shares of each level that are not gone yet
        bool waits = false;                       ///< for those of its current level
    };

    bool wantFolders(std::size_t removed) override;
    std::unique_ptr<RemovalPermit> permitForShare() override;
    void take(TreeRemover& giver, FolderShare share) override;

    void work();
    void settle(Job& job, TreeRemover::State state);
    void end(Job& job);
    void fail(const Job& job);
    void makeReady(Job& job);
    void noteWanted() { wanted_ = idle_ > ready_.size(); }

    /// More would only hold permits.
    static constexpr std::size_t maximumJobs = 16;

    const Size size_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::list<Job> jobs_;      ///< in the order in which one thread would get to them
    std::vector<Job*> ready_;  ///< taken from the back
    std::size_t working_ = 0;
    std::size_t idle_ = 0;
    std::atomic<bool> wanted_{false};  ///< more are idle than there are jobs ready
    Failure failure_;
    RemovalHelpers helpers_;  // the first to go: they use the rest
};

}  // namespace zelk
