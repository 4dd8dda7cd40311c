// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/MainThreadCalls.h"
#include "reclaim/ReclaimCatalogue.h"
#include "reclaim/ReclaimTotals.h"
#include "reclaim/RemovalsModel.h"
#include "scan/ScanUpdate.h"
#include "state/Screen.h"
#include "state/SurveyHistory.h"

namespace zelk {

/// The state of the application: one instance for the whole run, shared with every screen. It starts and cancels
/// surveys, folds their updates into plain fields, keeps what the last one found and mirrors the Trash.
///
/// Main thread only. Every field has a signal that is emitted after a write that changed its value. A handler of a
/// signal may call anything here, but must not delete the model other than by deleteLater().
class AppModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(Appearance appearance READ appearance WRITE setAppearance NOTIFY appearanceChanged)
    Q_PROPERTY(Audience audience READ audience WRITE setAudience NOTIFY audienceChanged)
    Q_PROPERTY(ScanPhase scanPhase READ scanPhase NOTIFY scanPhaseChanged)
    Q_PROPERTY(qint64 itemsScanned READ itemsScanned NOTIFY itemsScannedChanged)
    Q_PROPERTY(qint64 bytesScanned READ bytesScanned NOTIFY bytesScannedChanged)
    Q_PROPERTY(qint64 blockedPaths READ blockedPaths NOTIFY blockedPathsChanged)
    Q_PROPERTY(qint64 trashBytes READ trashBytes NOTIFY trashBytesChanged)
    Q_PROPERTY(bool trashAccessible READ trashAccessible NOTIFY trashAccessibleChanged)
    Q_PROPERTY(bool trashLoading READ trashLoading NOTIFY trashLoadingChanged)
    Q_PROPERTY(bool emptyingTrash READ emptyingTrash NOTIFY emptyingTrashChanged)
    Q_PROPERTY(qint64 ageFilterDays READ ageFilterDays WRITE setAgeFilterDays NOTIFY ageFilterDaysChanged)
    Q_PROPERTY(bool hardDeleteEnabled READ hardDeleteEnabled WRITE setHardDeleteEnabled NOTIFY hardDeleteEnabledChanged)

public:
    enum class ScanPhase { idle, scanning, finished };
    enum class Audience { normal, developer };
    enum class Appearance { system, light, dark };
    Q_ENUM(ScanPhase)
    Q_ENUM(Audience)
    Q_ENUM(Appearance)

    /// The services must outlive the model and, where a scan or a background task is under way when it goes, these too.
    explicit AppModel(Platform platform, QObject* parent = nullptr);
    ~AppModel() override;

    // What the user chose; back to the defaults at every launch.
    Appearance appearance() const { return appearance_; }
    void setAppearance(Appearance appearance);
    Audience audience() const { return audience_; }
    void setAudience(Audience audience);
    Screen selection() const { return selection_; }
    void setSelection(Screen screen);
    const std::vector<std::string>& scanRoots() const { return scanRoots_; }
    /// Normal folders, each once: one that is surveyed under two spellings would count twice.
    void setScanRoots(const std::vector<std::string>& roots);
    std::int64_t ageFilterDays() const { return ageFilterDays_; }
    void setAgeFilterDays(std::int64_t days);
    bool hardDeleteEnabled() const { return hardDeleteEnabled_; }
    void setHardDeleteEnabled(bool enabled);

    // The survey.
    ScanPhase scanPhase() const { return scanPhase_; }
    std::int64_t itemsScanned() const { return itemsScanned_; }
    std::int64_t bytesScanned() const { return bytesScanned_; }
    const std::string& currentPath() const { return currentPath_; }
    std::int64_t blockedPaths() const { return blockedPaths_; }
    const NodeRef& root() const { return root_; }
    const std::optional<ScanStats>& stats() const { return stats_; }
    const std::vector<Reclaimable>& reclaimables() const { return reclaimables_; }
    const ScanInsights& insights() const { return insights_; }
    const std::optional<VolumeInfo>& volume() const { return volume_; }
    void setVolume(std::optional<VolumeInfo> volume);
    /// Reads that of the home folder where there is none yet, in a task: a volume that does not answer must not hold
    /// the first frame.
    void readAbsentVolume();
    const std::vector<SurveyRecord>& history() const { return history_; }

    // The Trash.
    std::int64_t trashBytes() const { return trashBytes_; }
    bool trashAccessible() const { return trashAccessible_; }
    bool trashLoading() const { return trashLoading_; }
    bool emptyingTrash() const { return emptyingTrash_; }

    /// What is being taken away, here and by the models of screens.
    RemovalsModel& removals() { return removals_; }
    /// The services, for the models of screens that do things of their own.
    const Platform& platform() const { return platform_; }
    /// The desktop around the application, for screens that show things in it.
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
    /// The first meaningful level (below the only root, or the roots), largest first; empty without a tree.
    std::vector<NodeRef> topFolders() const;
    std::optional<std::int64_t> daysUntilFull() const;
    std::optional<FolderChanges> folderChanges() const;

public slots:
    /// Does nothing while a survey runs.
    void startScan();
    /// After a cleaning: a new survey, which begins when the one that runs has finished, as that one came by before. A
    /// cancel of it ends both.
    void scanAnew();
    void cancelScan();
    /// Measures the Trash again. Measures and emptyings may overlap: the last to end is what the fields tell.
    void refreshTrash();
    /// Removes for good what the Trash holds, measures what is left and reads the volume again. Does nothing while it
    /// does so already.
    void emptyTrash();
    /// Moves `safeItems()` to the Trash (or lets their tools run) without a review, then starts a survey.
    void cleanSafeCaches();

public:
    /// Moves a directory to the Trash and, once it is there, takes it out of the results by removeFromTree(). If it
    /// cannot be moved, nothing changes.
    void trashAndRemove(FSNode& node) { trashAndRemove({NodeRef(&node)}, {}); }
    /// The same for several, one after the other in this order. When the last one has been tried, `done` hears which
    /// of them are in the Trash; never, if the model has gone by then. What stands at the same path in the results at
    /// hand goes too where that is another tree, and in those of a survey under way when it ends.
    void trashAndRemove(const std::vector<NodeRef>& nodes, std::function<void(const std::vector<NodeRef>&)> done);
    /// Moves the file at `path`, below a root of the survey at hand, to the Trash; of a link that has taken its place
    /// the link itself. Once it is there, every entry with that path leaves the large files, also those that a survey
    /// under way goes on to report; all other results keep counting it. If it cannot be moved, or a link has taken the
    /// place of a folder on the way to it, nothing changes.
    void trashLargeFile(const std::string& path);
    /// Takes a directory out of the results after it was moved away: its size off all above it, and with it the items
    /// and large files at and below its path. What tells of the survey as it ran stays. While the classifier reads the
    /// tree this waits for its end. The node may be gone afterwards, unless the caller holds a reference. A node of an
    /// older tree leaves that one, which is told by no signal.
    void removeFromTree(FSNode& node);
    /// Drops a reference on another thread: the last one to a tree takes milliseconds to go.
    void releaseElsewhere(NodeRef tree);

signals:
    void appearanceChanged();
    void audienceChanged();
    void selectionChanged();
    void scanRootsChanged();
    void ageFilterDaysChanged();
    void hardDeleteEnabledChanged();
    void scanPhaseChanged();
    void itemsScannedChanged();
    void bytesScannedChanged();
    void currentPathChanged();
    void blockedPathsChanged();
    void rootChanged();  ///< another tree, or removeFromTree took something out of this one
    void statsChanged();
    void reclaimablesChanged();
    void insightsChanged();
    void volumeChanged();
    void historyChanged();
    void trashBytesChanged();
    void trashAccessibleChanged();
    void trashLoadingChanged();
    void emptyingTrashChanged();

private:
    struct ScanTask;

    void consumeUpdates(const std::shared_ptr<ScanTask>& task);
    void take(const std::shared_ptr<ScanTask>& task, ScanUpdate update);
    void finish(const std::shared_ptr<ScanTask>& task, update::Finished finished);
    void classify(const std::shared_ptr<ScanTask>& task);
    void completeFinish(const std::shared_ptr<ScanTask>& task, std::vector<Reclaimable> items);
    void removeWhatWaited(ScanTask& task);
    void withdraw(ScanTask& task);
    void dropLargeFile(const std::string& path);
    ScanTask* walkUnderWay() const;  // null without one
    std::vector<NodeRef> treesAtHand() const;
    std::string_view rootAbove(std::string_view path) const;
    void recordSurvey(const std::shared_ptr<ScanTask>& task, std::int64_t total, const NodeRef& tree);
    void conclude(const std::shared_ptr<ScanTask>& task, std::vector<SurveyRecord> history);
    void settleTrash();
    void takeTrashMeasure(std::optional<std::uint64_t> bytes);
    void setReclaimables(std::vector<Reclaimable> items);
    /// The path of the first scan root: the place that the volume and the first line of progress speak of.
    const std::string& firstPlace() const { return scanRoots_.empty() ? home_ : scanRoots_.front(); }
    void releaseElsewhere(std::vector<ScanUpdate> updates);
    void releaseElsewhere(std::vector<Reclaimable> items);

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
    std::int64_t itemsScanned_ = 0;
    std::int64_t bytesScanned_ = 0;
    std::string currentPath_;
    std::int64_t blockedPaths_ = 0;
    NodeRef root_;
    std::optional<ScanStats> stats_;
    std::vector<Reclaimable> reclaimables_;
    ScanInsights insights_;
    std::optional<VolumeInfo> volume_;
    std::int64_t trashBytes_ = 0;
    bool trashAccessible_ = true;
    bool trashLoading_ = false;
    bool emptyingTrash_ = false;
    std::vector<SurveyRecord> history_;
    std::vector<std::string> scanRoots_;
    std::int64_t ageFilterDays_ = 14;
    bool hardDeleteEnabled_ = false;
    std::string home_;
    DeviceInfo device_;
    std::shared_ptr<ScanTask> scanTask_;  // ended or not; absent after a cancel
    // The tops of trees that a cancel withdrew while another thread read them: not to be changed, if they are there at
    // all.
    std::set<const FSNode*> withdrawn_;
    RemovalsModel removals_;
    MainThreadCalls calls_;
};

/// "Normal", "Developer".
std::string_view rawValue(AppModel::Audience audience);
/// "system", "light", "dark".
std::string_view rawValue(AppModel::Appearance appearance);

}  // namespace zelk
