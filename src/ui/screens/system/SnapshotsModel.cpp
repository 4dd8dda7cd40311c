// SPDX-License-Identifier: MIT
#include "ui/screens/system/SnapshotsModel.h"

#include <QPointer>
#include <QStringList>
#include <algorithm>
#include <cstdint>
#include <set>
#include <utility>

#include "state/AppModel.h"
#include "state/Figures.h"
#include "system/CommandText.h"
#include "system/PrivilegedCommands.h"
#include "system/SnapshotCommands.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

constexpr std::size_t rowsAtOnce = 100;

/// Whether snapper lists the snapshots for this user, whom it then lets remove them without asking.
bool isUsersOwn(const SnapshotListing& listing) {
    return listing.keeper == SnapshotKeeper::snapper && !listing.refused;
}

std::set<std::string> identifiersOf(const std::vector<LocalSnapshot>& snapshots) {
    std::set<std::string> identifiers;
    for (const LocalSnapshot& snapshot : snapshots) identifiers.insert(snapshot.uuid);
    return identifiers;
}

}  // namespace

SnapshotsModel::SnapshotsModel(AppModel& app) : app_(app), most_(rowsAtOnce) {}

SnapshotsModel::~SnapshotsModel() {
    endRemoval();
}

bool SnapshotsModel::nothing() const {
    return !listed() && !listing_.refused;
}

bool SnapshotsModel::thinnable() const {
    return !nothing() && (listing_.keeper == SnapshotKeeper::diskutil || listing_.keeper == SnapshotKeeper::snapper);
}

QString SnapshotsModel::note() const {
    if (nothing()) return {};
    if (listing_.refused) return SystemTexts::of(SystemTexts::SnapshotsRefused);
    return SystemTexts::of(listing_.keeper == SnapshotKeeper::zfs ? SystemTexts::SnapshotsOfZfs
                                                                  : SystemTexts::SnapshotSizes);
}

QString SnapshotsModel::more() const {
    const std::size_t left = listing_.snapshots.size() - std::min(listing_.snapshots.size(), most_);
    if (left == 0) return {};
    if (left == 1) return tr("1 more snapshot is not shown.");
    const auto count = static_cast<std::int64_t>(left);
    return tr("%1 more snapshots are not shown.", "", forPlural(count)).arg(groupedFigure(count));
}

QString SnapshotsModel::output() const {
    return lastActionOutput_ ? printedText(*lastActionOutput_) : QString();
}

QString SnapshotsModel::question() const {
    return asked_.snapshot ? tr("Delete this snapshot?") : tr("Thin the snapshots?");
}

QString SnapshotsModel::consequence() const {
    if (!asked_.snapshot)
        return tr("The freeable ones are removed, as many as it takes to have %1 free. They cannot be brought back.")
            .arg(byteFigure(thinnedBytes));
    const QString name = displayText(asked_.snapshot->name);
    if (!asked_.snapshot->date) return tr("“%1” is removed for good. It cannot be brought back.").arg(name);
    return tr("“%1” of %2 is removed for good. It cannot be brought back.")
        .arg(name, shortDate(*asked_.snapshot->date));
}

QString SnapshotsModel::agreement() const {
    return asked_.snapshot ? tr("Delete") : tr("Thin 5 GB");
}

void SnapshotsModel::reload() {
    loading_ = true;
    emit changed();
    app_.platform().tasks.runApart(TaskPriority::userInitiated, [this, mainThread = mainThread_.sender(),
                                                                 platform = app_.platform(), number = ++begun_] {
        mainThread.post([this, number, listing = listSnapshots(platform)] { take(number, listing); });
    });
}

/// A list that was asked for before the one on screen comes too late.
void SnapshotsModel::take(int number, SnapshotListing listing) {
    if (number < shown_) return;
    shown_ = number;
    listing_ = std::move(listing);
    loading_ = false;
    showRows();
    const bool proves = acting_ && action_.listedBy > 0 && number >= action_.listedBy;
    if (proves) acting_ = false;
    emit changed();
    if (proves) showOutput(outcomeOf(action_));
}

void SnapshotsModel::showRows() {
    const auto first = listing_.snapshots.begin();
    const std::size_t count = std::min(listing_.snapshots.size(), most_);
    rows_.show({first, first + static_cast<std::ptrdiff_t>(count)});
}

void SnapshotsModel::showMore() {
    most_ += rowsAtOnce;
    showRows();
    emit changed();
}

void SnapshotsModel::thin() {
    if (!acting_ && thinnable()) request({});
}

void SnapshotsModel::remove(int row) {
    const LocalSnapshot* snapshot = rows_.at(row);
    if (acting_ || snapshot == nullptr || !snapshot->purgeable) return;
    Action action;
    action.snapshot = *snapshot;
    request(std::move(action));
}

/// The system asks by itself before it lets an administrator remove anything.
void SnapshotsModel::request(Action action) {
    if (!isUsersOwn(listing_)) return act(std::move(action));
    asked_ = std::move(action);
    asking_ = true;
    emit questionChanged();
    emit askingChanged();
}

void SnapshotsModel::confirm() {
    if (!std::exchange(asking_, false)) return;
    emit askingChanged();
    if (!acting_ && stands(asked_)) act(asked_);
}

/// Whether the list still has what the question was about, as it was then. The question may be open for hours.
bool SnapshotsModel::stands(const Action& action) const {
    if (!action.snapshot) return thinnable();
    return std::ranges::find(listing_.snapshots, *action.snapshot) != listing_.snapshots.end();
}

void SnapshotsModel::cancel() {
    if (std::exchange(asking_, false)) emit askingChanged();
}

void SnapshotsModel::act(Action action) {
    action_ = std::move(action);
    action_.before = listing_;
    acting_ = true;
    emit changed();
    showOutput(std::nullopt);
    const std::optional<std::string> line =
        action_.snapshot ? deleteLine(listing_.keeper, *action_.snapshot) : thinLine(listing_);
    if (!line) return finish(refusedAnswer());

    // Quitting asks first: a command that is cut off has removed some of what it was to remove.
    removal_ = app_.removals().begin(1);
    if (!isUsersOwn(listing_)) return askAdministrator(*line);
    const auto runOwn = [this, mainThread = mainThread_.sender(), &processes = app_.platform().processes, line = *line,
                         removal = removal_] {
        std::optional<std::string> own = refusedAnswer();
        if (removal->mayBegin()) own = runAsUser(processes, line);
        mainThread.post([this, line, answer = std::move(own)] {
            if (answer)
                finish(*answer);
            else
                askAdministrator(line);
        });
    };
    app_.platform().tasks.runApart(TaskPriority::userInitiated, runOwn);
}

void SnapshotsModel::askAdministrator(const std::string& line) {
    if (!removal_->mayBegin()) return finish(refusedAnswer());
    app_.admin().runAdmin(line, [self = QPointer<SnapshotsModel>(this)](const std::string& answer) {
        if (self) self->finish(answer);
    });
}

void SnapshotsModel::finish(const std::string& answer) {
    endRemoval();
    action_.answer = answer;
    action_.listedBy = begun_ + 1;
    if (action_.before.keeper != SnapshotKeeper::snapper) showOutput(answer);
    reload();
}

void SnapshotsModel::endRemoval() {
    if (const std::shared_ptr<Removal> removal = std::exchange(removal_, nullptr)) removal->noteDone();
}

/// The answer, and of snapper what the new list says about it: it may exit with success after refusing, and says
/// nothing after doing what it was told.
std::string SnapshotsModel::outcomeOf(const Action& action) const {
    const SnapshotListing& before = action.before;
    std::string text = action.answer;
    if (before.keeper != SnapshotKeeper::snapper || wasNotAllowed(text)) return text;
    if (!text.empty() && text.back() != '\n' && text != refusedAnswer()) text += '\n';
    const bool comparable = isUsersOwn(before) && isUsersOwn(listing_) && before.config == listing_.config;
    if (!comparable) return text + tr("What was removed is not known: the list could not be read.").toStdString();
    const std::set<std::string> now = identifiersOf(listing_.snapshots);
    if (action.snapshot) {
        const bool there = now.contains(action.snapshot->uuid);
        return text + (there ? tr("The snapshot is still there.") : tr("The snapshot is gone.")).toStdString();
    }
    const auto gone = static_cast<int>(std::ranges::count_if(
        before.snapshots, [&now](const LocalSnapshot& snapshot) { return !now.contains(snapshot.uuid); }));
    const QString sentence = gone == 0   ? tr("No snapshot was removed.")
                             : gone == 1 ? tr("1 snapshot was removed.")
                                         : tr("%n snapshots were removed.", "", gone);
    return text + sentence.toStdString();
}

void SnapshotsModel::showOutput(std::optional<std::string> output) {
    if (output == lastActionOutput_) return;
    lastActionOutput_ = std::move(output);
    emit outputChanged();
}

}  // namespace zelk

#include "moc_SnapshotsModel.cpp"
