// SPDX-License-Identifier: MIT
#include "state/AppModel.h"

#include <algorithm>
#include <iterator>

#include "platform/FolderPath.h"
#include "state/Figures.h"
#include "state/ReleaseElsewhere.h"

namespace zelk {

AppModel::AppModel(Platform platform, QObject* parent)
    : QObject(parent),
      platform_(platform),
      historyFile_(std::make_shared<SurveyHistory>(platform.files, platform.locations)),
      history_(historyFile_->load()),
      home_(platform.locations.home()),
      device_(platform.vitals.device()),
      results_(platform.tasks, [this](SurveyResults::Field field) { tell(field); }),
      admin_(platform, mainThread_.sender()),
      trash_(platform, removals_, mainThread_.sender(), [this] { emit trashChanged(); }),
      removalUndo_(platform, mainThread_.sender()),
      cleanup_(platform, results_, removals_, removalUndo_, mainThread_.sender()),
      tune_(platform, admin_, removalUndo_),
      duplicates_(platform, removals_, removalUndo_, mainThread_.sender()),
      apps_(platform, removals_, removalUndo_, mainThread_.sender()),
      privacy_(platform, removals_, removalUndo_, mainThread_.sender()) {
    scanRoots_ = {home_};
}

AppModel::~AppModel() {
    // From here on no other thread finds its way back to this object.
    mainThread_.close();
}

// What the user chose.

void AppModel::setAppearance(Appearance appearance) {
    assign(appearance_, appearance, &AppModel::appearanceChanged);
}

void AppModel::setAudience(Audience audience) {
    assign(audience_, audience, &AppModel::audienceChanged);
}

void AppModel::setSelection(Screen screen) {
    assign(selection_, screen, &AppModel::selectionChanged);
}

void AppModel::setScanRoots(const std::vector<std::string>& roots) {
    std::vector<std::string> once;
    for (const std::string& root : roots) {
        std::string normal = normalFolder(root);
        if (std::find(once.begin(), once.end(), normal) == once.end()) once.push_back(std::move(normal));
    }
    assign(scanRoots_, std::move(once), &AppModel::scanRootsChanged);
}

void AppModel::setAgeFilterDays(std::int64_t days) {
    assign(ageFilterDays_, days, &AppModel::ageFilterDaysChanged);
}

void AppModel::setHardDeleteEnabled(bool enabled) {
    assign(hardDeleteEnabled_, enabled, &AppModel::hardDeleteEnabledChanged);
}

// The survey. Every signal may run a handler that cancels it or starts another one, so afterwards the task is compared.

void AppModel::startScan() {
    if (scanPhase_ == ScanPhase::scanning) return;
    const auto session = std::make_shared<SurveySession>(
        platform_, home_, results_, mainThread_.sender(),
        SurveySession::Events{[this] { recordSurvey(root()->size, root()); },
                              [this](std::vector<SurveyRecord> history) { finishSurvey(std::move(history)); }});
    scanTask_ = session;
    scanAgain_ = false;
    assign(scanPhase_, ScanPhase::scanning, &AppModel::scanPhaseChanged);
    if (scanTask_ != session) return;
    removalUndo_.forgetResults();
    results_.begin(firstPlace());
    setVolume(platform_.vitals.volume(firstPlace()));
    if (scanTask_ == session) session->start(scanRoots_);
}

void AppModel::scanAnew() {
    if (scanPhase_ == ScanPhase::scanning)
        scanAgain_ = true;
    else
        startScan();
}

void AppModel::cancelScan() {
    if (const auto session = std::exchange(scanTask_, nullptr)) {
        session->cancel();
        if (!session->isRecorded()) results_.withdraw();
    }
    assign(scanPhase_, ScanPhase::idle, &AppModel::scanPhaseChanged);
}

void AppModel::tell(SurveyResults::Field field) {
    switch (field) {
        case SurveyResults::Field::progress:
            return emit progressChanged();
        case SurveyResults::Field::tree:
            return emit rootChanged();
        case SurveyResults::Field::reclaimables:
            return emit reclaimablesChanged();
        case SurveyResults::Field::insights:
            return emit insightsChanged();
    }
}

/// Makes the record here and has it written in a task: reading, encoding and flushing a full history takes long enough
/// to show as a jerk in the last frame of a survey.
void AppModel::recordSurvey(std::int64_t total, const NodeRef& tree) {
    SurveyRecord record;
    record.date = platform_.clock.now();
    record.totalScanned = total;
    if (volume_) {
        record.used = std::max<std::int64_t>(0, volume_->total - volume_->available);
        record.free = volume_->available;
    }
    record.reclaimable = reclaimableBytes();
    for (const FileType type : allFileTypes)
        if (insights().typeTotals.contains(type))
            record.types.emplace(rawValue(type), insights().typeTotals[type].bytes);
    scanTask_->record(std::move(record), tree, historyFile_);
}

void AppModel::finishSurvey(std::vector<SurveyRecord> history) {
    const auto session = scanTask_;
    const bool isNew = history != history_;
    history_ = std::move(history);
    results_.keep();
    if (isNew) emit historyChanged();
    if (scanTask_ != session) return;
    trash_.settle(*root());
    if (scanTask_ != session) return;
    assign(scanPhase_, ScanPhase::finished, &AppModel::scanPhaseChanged);
    if (scanAgain_ && scanTask_ == session) startScan();
}

void AppModel::setVolume(std::optional<VolumeInfo> volume) {
    assign(volume_, volume, &AppModel::volumeChanged);
}

void AppModel::readAbsentVolume() {
    if (volume_) return;
    auto work = [this, mainThread = mainThread_.sender(), &vitals = platform_.vitals, home = home_] {
        mainThread.post([this, volume = vitals.volume(home)] {
            if (!volume_) setVolume(volume);
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

// The Trash and what goes there.

void AppModel::refreshTrash() {
    trash_.refresh();
}

void AppModel::emptyTrash() {
    trash_.empty([this] {
        if (const auto volume = platform_.vitals.volume(firstPlace())) setVolume(volume);
    });
}

void AppModel::cleanSafeCaches() {
    if (std::vector<Reclaimable> items = safeItems(); !items.empty())
        cleanup_.clean(std::move(items), [this] { scanAnew(); });
}

void AppModel::trashAndRemove(const std::vector<NodeRef>& nodes,
                              std::function<void(const std::vector<NodeRef>&)> done) {
    cleanup_.trashFolders(nodes, std::move(done));
}

void AppModel::trashLargeFile(const std::string& path) {
    cleanup_.trashLargeFile(path);
}

void AppModel::undoLastRemoval() {
    removalUndo_.undo([this](bool resultsAreComplete) {
        refreshTrash();
        if (!resultsAreComplete) scanAnew();
    });
}

void AppModel::removeFromTree(FSNode& node) {
    results_.remove(node);
}

void AppModel::releaseElsewhere(NodeRef tree) {
    if (tree) zelk::releaseElsewhere(platform_.tasks, std::move(tree));
}

// Derived values.

std::int64_t AppModel::reclaimableBytes() const {
    return totalSize(reclaimables());
}

std::vector<Reclaimable> AppModel::safeItems() const {
    std::vector<Reclaimable> items;
    std::copy_if(reclaimables().begin(), reclaimables().end(), std::back_inserter(items),
                 [](const Reclaimable& item) { return item.safety == ReclaimSafety::safe; });
    return items;
}

std::int64_t AppModel::safeBytes() const {
    std::int64_t bytes = 0;
    for (const Reclaimable& item : reclaimables())
        if (item.safety == ReclaimSafety::safe) bytes += static_cast<std::int64_t>(item.size);
    return bytes;
}

std::int64_t AppModel::freeBytes() const {
    if (volume_) return volume_->available;
    const std::optional<VolumeInfo> read = platform_.vitals.volume(firstPlace());
    return read ? read->available : 0;
}

std::string AppModel::progressLine() const {
    return tr("%1 items · %2", "", forPlural(itemsScanned()))
        .arg(groupedFigure(itemsScanned()), byteFigure(bytesScanned()))
        .toStdString();
}

ReclaimTotals AppModel::reclaimTotals() const {
    return totalsByCategory(reclaimables());
}

std::vector<std::pair<FileType, TypeTally>> AppModel::sortedTypeTotals() const {
    std::vector<std::pair<FileType, TypeTally>> totals;
    for (const FileType type : allFileTypes)
        if (insights().typeTotals.contains(type)) totals.emplace_back(type, insights().typeTotals[type]);
    std::stable_sort(totals.begin(), totals.end(),
                     [](const auto& a, const auto& b) { return a.second.bytes > b.second.bytes; });
    return totals;
}

std::vector<NodeRef> AppModel::topFolders() const {
    if (!root()) return {};
    const FSNode* const only = root()->onlyChild();
    std::vector<NodeRef> folders;
    for (FSNode& folder : (only ? *only : *root()).children()) folders.emplace_back(&folder);
    std::stable_sort(folders.begin(), folders.end(),
                     [](const NodeRef& a, const NodeRef& b) { return a->size > b->size; });
    return folders;
}

std::optional<std::int64_t> AppModel::daysUntilFull() const {
    return zelk::daysUntilFull(history_);
}

std::optional<AppModel::FolderChanges> AppModel::folderChanges() const {
    return zelk::folderChanges(history_);
}

std::string_view rawValue(AppModel::Audience audience) {
    return audience == AppModel::Audience::developer ? "Developer" : "Normal";
}

std::string_view rawValue(AppModel::Appearance appearance) {
    switch (appearance) {
        case AppModel::Appearance::system:
            return "system";
        case AppModel::Appearance::light:
            return "light";
        case AppModel::Appearance::dark:
            return "dark";
    }
    return {};
}

}  // namespace zelk

#include "moc_AppModel.cpp"
