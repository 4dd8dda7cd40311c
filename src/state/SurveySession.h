// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "scan/CancelFlag.h"
#include "scan/UpdateQueue.h"
#include "state/MainThreadQueue.h"
#include "state/SurveyHistory.h"
#include "state/SurveyResults.h"

namespace zelk {

/// One survey, from the start of its scan to its record in the history. It writes what the scan reports into
/// SurveyResults, then has the finished tree classified, then has the record written:
///
///     start() ──updates──> classifying ──> Events::classified ──record()──> writing ──> Events::recorded
///
/// Owned by AppModel; closures that come back from other threads hold it weakly, so a cancelled survey ends by itself.
/// Main thread only: the scan, the classifier and the writing of the record have threads of their own.
///
/// Nothing fails: a folder that cannot be read is counted, and a history that cannot be written is complete in memory.
/// Every change of SurveyResults may run handlers that cancel this survey, so its state is checked after each.
class SurveySession : public std::enable_shared_from_this<SurveySession> {
public:
    struct Events {
        /// The results hold the tree and its items: record() is to be called with them.
        std::function<void()> classified;
        /// The record is written; carries the whole history. The survey can no longer be withdrawn.
        std::function<void(std::vector<SurveyRecord>)> recorded;
    };

    /// The services, `results` and what `events` refers to must outlive the survey; the services also its threads.
    SurveySession(const Platform& platform, std::string home, SurveyResults& results,
                  MainThreadQueue::Sender mainThread, Events events);
    /// Ends the scan.
    ~SurveySession();
    SurveySession(const SurveySession&) = delete;
    SurveySession& operator=(const SurveySession&) = delete;

    void start(const std::vector<std::string>& roots);
    /// Adds the big folders of `tree` to `record` and appends it to `history`, in a task.
    void record(SurveyRecord record, const NodeRef& tree, const std::shared_ptr<SurveyHistory>& history);
    /// Ends the scan; neither event comes any more. A record that is being written is taken out of the history again.
    void cancel();
    bool isRecorded() const { return isRecorded_; }

private:
    void consumeUpdates();
    void take(ScanUpdate update);
    void finish(update::Finished finished);
    void classify();
    void takeItems(std::vector<Reclaimable> items);
    void takeHistory(std::vector<SurveyRecord> history);
    void endScan();

    const Platform platform_;
    const std::string home_;
    SurveyResults& results_;
    const MainThreadQueue::Sender mainThread_;
    const Events events_;
    const std::shared_ptr<UpdateQueue> queue_ = std::make_shared<UpdateQueue>();
    // Shared with the task that writes the record, which may be running when the survey is cancelled.
    const std::shared_ptr<CancelFlag> withdrawn_ = std::make_shared<CancelFlag>();
    bool isConsuming_ = false;  // perhaps in a nested event loop, inside a handler
    bool isCancelled_ = false;
    bool isRecorded_ = false;
};

}  // namespace zelk
