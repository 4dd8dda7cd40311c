// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/ReclaimCatalogue.h"
#include "reclaim/ReclaimTotals.h"
#include "scan/ScanUpdate.h"
#include "state/AdminRunner.h"
#include "state/CleanupSession.h"
#include "state/DuplicatesModel.h"
#include "state/MainThreadQueue.h"
#include "state/RemovalUndo.h"
#include "state/RemovalsModel.h"
#include "state/Screen.h"
#include "state/SurveyHistory.h"
#include "state/SurveyResults.h"
#include "state/SurveySession.h"
#include "state/TrashMirror.h"
#include "state/TuneModel.h"

namespace zelk {

/// The state of the application: one instance for the whole run, shared by every screen. It holds what the user chose
/// and puts five collaborators behind one face: a SurveySession runs a survey, SurveyResults hold what it found,
/// CleanupSession removes things, which RemovalUndo restores, and TrashMirror shows the Trash.
///
/// Main thread only. Every field has a signal that is emitted after a write that changed its value. A handler may call
/// anything here, but must not delete the model other than by deleteLater(). No operation reports an error: what
/// cannot be read is zero, empty or absent, and what cannot be moved stays.
class AppModel : public QObject {
    Q_OBJECT

public:
    enum class ScanPhase { idle, scanning, finished };
    enum class Audience { normal, developer };
    enum class Appearance { system, light, dark };
    using FolderChange = zelk::FolderChange;
    using FolderChanges = zelk::FolderChanges;

    /// The services must outlive the model and every scan and background task that is running when the model goes.
    explicit AppModel(Platform platform, QObject* parent = nullptr);
    ~AppModel() override;

    // What the user chose. Every launch begins with the defaults.
    Appearance appearance() const { return appearance_; }
    void setAppearance(Appearance appearance);
    Audience audience() const { return audience_; }
    void setAudience(Audience audience);
    Screen selection() const { return selection_; }
    void setSelection(Screen screen);
    const std::vector<std::string>& scanRoots() const { return scanRoots_; }
    /// Normalizes the folders and drops duplicates: a folder under two spellings would be counted twice.
    void setScanRoots(const std::vector<std::string>& roots);
    std::int64_t ageFilterDays() const { return ageFilterDays_; }
    void setAgeFilterDays(std::int64_t days);
    bool hardDeleteEnabled() const { return hardDeleteEnabled_; }
    void setHardDeleteEnabled(bool enabled);

    // The survey.
    ScanPhase scanPhase() const { return scanPhase_; }
    std::int64_t itemsScanned() const { return results_.progress().items; }
    std::int64_t bytesScanned() const { return results_.progress().bytes; }
    const std::string& currentPath() const { return results_.progress().currentPath; }
    std::int64_t blockedPaths() const { return results_.progress().blockedPaths; }
    const NodeRef& root() const { return results_.root(); }
    const std::optional<ScanStats>& stats() const { return results_.stats(); }
    const std::vector<Reclaimable>& reclaimables() const { return results_.reclaimables(); }
    const ScanInsights& insights() const { return results_.insights(); }
    const std::optional<VolumeInfo>& volume() const { return volume_; }
    void setVolume(std::optional<VolumeInfo> volume);
    /// Reads the volume of the home folder if there is none yet. In a task: a volume that does not answer must not
    /// delay the first frame.
    void readAbsentVolume();
    const std::vector<SurveyRecord>& history() const { return history_; }

    // The Trash.
    std::int64_t trashBytes() const { return trash_.bytes(); }
    bool trashAccessible() const { return trash_.accessible(); }
    bool trashLoading() const { return trash_.loading(); }
    bool emptyingTrash() const { return trash_.emptying(); }

    /// Every removal that is running, whether started here or by the model of a screen.
    RemovalsModel& removals() { return removals_; }
    /// What the last trashAndRemove(), trashLargeFile() or removal of background items or duplicates moved to the
    /// Trash.
    RemovalUndo& removalUndo() { return removalUndo_; }
    /// Memory, caches, and what starts in the background.
    TuneModel& tune() { return tune_; }
    /// Files of the same content.
    DuplicatesModel& duplicates() { return duplicates_; }
    /// Commands that need an administrator.
    AdminRunner& admin() { return admin_; }
    /// The services, for the models of screens.
    const Platform& platform() const { return platform_; }
    Workspace& workspace() const { return platform_.workspace; }
    const std::string& home() const { return home_; }
    const DeviceInfo& device() const { return device_; }

    // Derived at each call, never stored.
    std::int64_t reclaimableBytes() const;
    std::vector<Reclaimable> safeItems() const;
    std::int64_t safeBytes() const;
    std::int64_t freeBytes() const;
    /// "1,234 items · 5.6 GB" in the user's locale.
    std::string progressLine() const;
    /// Bytes per category of the catalogue, largest first.
    ReclaimTotals reclaimTotals() const;
    /// By bytes, largest first.
    std::vector<std::pair<FileType, TypeTally>> sortedTypeTotals() const;
    /// The folders below the only scan root, or the scan roots if there are several, largest first. Empty without a
    /// tree.
    std::vector<NodeRef> topFolders() const;
    std::optional<std::int64_t> daysUntilFull() const;
    std::optional<FolderChanges> folderChanges() const;

    /// Does nothing while a survey runs.
    void startScan();
    /// Starts a survey, or has another one follow a survey that is running, which may have passed what was cleaned.
    /// Cancelling the latter cancels both.
    void scanAnew();
    void cancelScan();

    /// Measures the Trash again.
    void refreshTrash();
    /// Removes for good what the Trash holds, then measures it and reads the volume again. Does nothing while an
    /// emptying is running.
    void emptyTrash();

    /// Cleans `safeItems()` without a review, then starts a survey.
    void cleanSafeCaches();
    /// Moves a directory to the Trash and, once it is there, removes it from the results as removeFromTree() does. If
    /// it cannot be moved, nothing changes.
    void trashAndRemove(FSNode& node) { trashAndRemove({NodeRef(&node)}, {}); }
    /// Does so for several directories, one after the other in this order. After the last was tried, `done` gets those
    /// that are in the Trash; it is not called if the model has gone by then. A directory that the current results
    /// contain under the same path but in another tree is removed too, as is one that a running survey reports later.
    void trashAndRemove(const std::vector<NodeRef>& nodes, std::function<void(const std::vector<NodeRef>&)> done);
    /// Moves the file at `path`, below a root of the last survey, to the Trash; a link that has replaced it is moved
    /// itself. Once it is there, the large files no longer contain that path, not even if a running survey reports it
    /// later; all other results keep counting it. If it cannot be moved, or a link has replaced a folder on the way to
    /// it, nothing changes.
    void trashLargeFile(const std::string& path);
    /// Restores from the Trash what the last removal that removalUndo() tells of moved there, as far as possible, and
    /// reports by removalUndo(). What is back is in the results again, and the Trash is measured. If another survey has
    /// begun since the removal, a new one is started instead, as by scanAnew().
    void undoLastRemoval();
    /// Removes a directory from the results after it was moved away: subtracts its size from every folder above it, and
    /// drops the items and large files at and below its path. What describes the survey as it ran stays. Waits until
    /// the classifier no longer reads the tree. The node may be gone afterwards unless the caller holds a reference. A
    /// node of an older tree leaves that tree, which no signal tells.
    void removeFromTree(FSNode& node);
    /// Drops a reference on another thread: destroying a tree takes milliseconds.
    void releaseElsewhere(NodeRef tree);

signals:
    void appearanceChanged();
    void audienceChanged();
    void selectionChanged();
    void scanRootsChanged();
    void ageFilterDaysChanged();
    void hardDeleteEnabledChanged();
    void scanPhaseChanged();
    void progressChanged();  ///< itemsScanned, bytesScanned, currentPath or blockedPaths
    void rootChanged();      ///< another tree with its stats, or removeFromTree() took something out of this one
    void reclaimablesChanged();
    void insightsChanged();
    void volumeChanged();
    void historyChanged();
    void trashChanged();  ///< trashBytes, trashAccessible, trashLoading or emptyingTrash

private:
    void tell(SurveyResults::Field field);
    void recordSurvey(std::int64_t total, const NodeRef& tree);
    void finishSurvey(std::vector<SurveyRecord> history);
    /// The first scan root, or the home folder if there is none: the place whose volume is shown.
    const std::string& firstPlace() const { return scanRoots_.empty() ? home_ : scanRoots_.front(); }

    template <class T>
    void assign(T& field, std::type_identity_t<T> value, void (AppModel::*changed)()) {
        if (field == value) return;
        field = std::move(value);
        emit(this->*changed)();
    }

    Platform platform_;
    std::shared_ptr<SurveyHistory> historyFile_;  // shared with the task that writes it

    Appearance appearance_ = Appearance::dark;
    Audience audience_ = Audience::normal;
    Screen selection_ = Screen::survey;
    ScanPhase scanPhase_ = ScanPhase::idle;
    std::optional<VolumeInfo> volume_;
    std::vector<SurveyRecord> history_;
    std::vector<std::string> scanRoots_;
    std::int64_t ageFilterDays_ = 14;
    bool hardDeleteEnabled_ = false;
    std::string home_;
    DeviceInfo device_;

    MainThreadQueue mainThread_;
    RemovalsModel removals_;
    SurveyResults results_;
    AdminRunner admin_;
    TrashMirror trash_;
    RemovalUndo removalUndo_;
    CleanupSession cleanup_;
    TuneModel tune_;
    DuplicatesModel duplicates_;
    std::shared_ptr<SurveySession> scanTask_;  // running or finished; absent after a cancel
    bool scanAgain_ = false;                   // when that one has finished
};

/// "Normal", "Developer".
std::string_view rawValue(AppModel::Audience audience);
/// "system", "light", "dark".
std::string_view rawValue(AppModel::Appearance appearance);

}  // namespace zelk
