// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "state/MainThreadQueue.h"

namespace zelk {

/// What the last removal without a review moved to the Trash, and how to undo it.
///
/// Owned by AppModel and used on the main thread only; a background task does the restoring. Errors are reported with
/// ended(): what cannot be restored stays in the Trash and is not tried again.
class RemovalUndo : public QObject {
    Q_OBJECT

public:
    enum class Source {
        folders,          ///< AppModel::trashAndRemove()
        largeFile,        ///< AppModel::trashLargeFile()
        backgroundItems,  ///< TuneModel::removeSelected()
        duplicates,       ///< DuplicatesModel::trashOthers()
        applications,     ///< AppsModel::uninstall()
        traces            ///< PrivacyModel::clearSelected()
    };
    /// Whether what is removed there was found by a survey, so that another survey concerns its undo.
    static bool isOfSurvey(Source source) { return source == Source::folders || source == Source::largeFile; }

    struct Item {
        TrashedItem trashed;
        /// Adds the restored item to the results, or to the list that it was taken from, again. Returns false, as if
        /// null, if that is not possible: then only a new survey gives complete results.
        std::function<bool()> putBack;
        /// A part of the item that undo() restores before this one, or of the one that that is a part of: restored only
        /// if that was. Beside something newer of the same name it would do harm.
        bool isPart = false;
    };

    struct Outcome {
        std::size_t restored = 0;
        std::vector<std::string> failures;  ///< one displayable text for each item that was not restored
        std::size_t notFound = 0;           ///< items whose place in the Trash the system did not report
    };

    /// The services must outlive this object and its task.
    RemovalUndo(const Platform& platform, MainThreadQueue::Sender mainThread);
    ~RemovalUndo() override;

    /// A removal has ended that moved `moved` items; `items` are those that can be restored, in the order in which they
    /// were moved. Replaces the removal before, unless nothing was moved.
    void offer(Source source, std::size_t moved, std::vector<Item> items);
    /// The results of the survey are replaced: what was found by it and moved before can no longer be added to them.
    void forgetResults();

    /// Who asked for the last removal that moved something.
    Source source() const { return source_; }
    /// The number of items that the last removal moved; 0 once its undo has begun.
    std::size_t moved() const { return moved_; }
    /// How many of them undo() would try to restore; 0 while an undo is running.
    std::size_t restorable() const { return underWay_ ? 0 : items_.size(); }
    bool underWay() const { return underWay_; }

    /// Restores them all, the last one first, since one may have been inside another. Calls `settle` before ended(),
    /// unless nothing was restored, and tells it whether the results are complete. Does nothing if there is nothing to
    /// restore.
    void undo(std::function<void(bool resultsAreComplete)> settle);

signals:
    /// Another removal has ended.
    void offered();
    /// moved(), restorable() or underWay().
    void changed();
    void ended(const zelk::RemovalUndo::Outcome& outcome);

private:
    void finish(std::size_t notFound, const std::vector<Failure>& failures, const std::function<void(bool)>& settle);
    void forgetResultsOf(std::vector<Item>& items);
    void release(std::vector<Item> items);

    BackgroundTasks& tasks_;
    Trash& trash_;
    const MainThreadQueue::Sender mainThread_;
    Source source_ = Source::folders;
    std::size_t moved_ = 0;
    std::vector<Item> items_;      ///< of the last removal
    std::vector<Item> restoring_;  ///< of the running undo
    Source restoringSource_ = Source::folders;
    bool underWay_ = false;
};

}  // namespace zelk
