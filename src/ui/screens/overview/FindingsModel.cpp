// SPDX-License-Identifier: MIT
#include "ui/screens/overview/FindingsModel.h"

#include <algorithm>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/FileTypeLook.h"

namespace zelk {

namespace {

const QColor largestTypeColor(255, 59, 48);

/// The surveyed bytes. With a single scan root, its own size.
std::int64_t scannedBytes(const AppModel& app) {
    const NodeRef& root = app.root();
    if (!root) return app.bytesScanned();
    return root->children.size() == 1 ? root->children.front()->size : root->size;
}

QString unreadText(std::int64_t folders) {
    if (folders < 1) return {};
    if (folders == 1) return FindingsModel::tr("1 folder could not be read.");
    return FindingsModel::tr("%1 folders could not be read.").arg(groupedFigure(folders));
}

std::vector<LargeFile> firstFew(const std::vector<LargeFile>& files) {
    constexpr std::size_t most = 5;
    return {files.begin(), files.begin() + static_cast<std::ptrdiff_t>(std::min(files.size(), most))};
}

std::int64_t largeFileBytes(const AppModel& app) {
    std::int64_t bytes = 0;
    for (const LargeFile& file : app.insights().topFiles) bytes += file.size;
    return bytes;
}

std::int64_t downloadsBytes(const AppModel& app) {
    for (const NodeRef& folder : app.topFolders())
        if (folder->name() == "Downloads") return folder->size;
    return 0;
}

/// The bytes that the system would free by itself for an application that needs space.
std::int64_t purgeableBytes(const AppModel& app) {
    const std::optional<VolumeInfo>& volume = app.volume();
    return volume ? std::max<std::int64_t>(volume->importantAvailable - volume->available, 0) : 0;
}

std::vector<FindingCards::Card> cardsOf(const AppModel& app) {
    return {
        {"sparkles", FindingCards::tr("Reclaim"), app.reclaimableBytes(),
         FindingCards::tr("%1 items of junk").arg(app.reclaimables().size()), QColor(50, 199, 123), Screen::reclaim},
        {"tray.full", FindingCards::tr("Clutter"), largeFileBytes(app),
         FindingCards::tr("%1 large files").arg(app.insights().topFiles.size()), QColor(34, 195, 201), Screen::clutter},
        {"arrow.down.circle", FindingCards::tr("Downloads"), downloadsBytes(app),
         FindingCards::tr("review what landed here"), QColor(86, 194, 245), Screen::clutter},
        {"internaldrive", FindingCards::tr("System"), purgeableBytes(app), FindingCards::tr("purgeable & snapshots"),
         QColor(124, 131, 255), Screen::system},
    };
}

}  // namespace

FindingCards::FindingCards(AppModel& app, QObject* parent)
    : RowModel({"symbol", "title", "value", "detail", "tint"}, parent), app_(app), cards_(cardsOf(app)) {}

void FindingCards::refresh() {
    const std::vector<Card> now = cardsOf(app_);
    for (std::size_t row = 0; row < cards_.size(); ++row) {
        if (cards_[row] == now[row]) continue;
        cards_[row] = now[row];
        rowChanged(static_cast<int>(row));
    }
}

QVariant FindingCards::value(std::size_t row, int role) const {
    const Card& card = cards_[row];
    switch (role) {
        case symbolRole:
            return card.symbol;
        case Qt::DisplayRole:
        case titleRole:
            return card.title;
        case valueRole:
            return card.value;
        case detailRole:
            return card.detail;
        case tintRole:
            return card.tint;
        default:
            return {};
    }
}

void FindingCards::press(int row) {
    if (has(row)) app_.setSelection(cards_[static_cast<std::size_t>(row)].screen);
}

FindingsModel::FindingsModel(AppModel& app, QObject* parent) : QObject(parent), app_(app), cards_(app) {
    for (const auto changedField : {&AppModel::scanPhaseChanged, &AppModel::reclaimablesChanged,
                                    &AppModel::insightsChanged, &AppModel::rootChanged, &AppModel::volumeChanged})
        connect(&app, changedField, this, &FindingsModel::refresh);
    refresh();
}

void FindingsModel::setTheme(const ZelkTheme& theme) {
    theme_ = &theme;
    largest_.setTheme(theme);
    refresh();
}

void FindingsModel::review() {
    app_.setSelection(Screen::reclaim);
}
void FindingsModel::seeAll() {
    app_.setSelection(Screen::clutter);
}

/// Skipped during a survey, whose results are not known yet and whose fields change many times per second.
void FindingsModel::refresh() {
    if (app_.scanPhase() != AppModel::ScanPhase::finished) return;
    headline();
    unreadLine_ = unreadText(app_.blockedPaths());
    segments_ = readSegments();
    freeBytes_ = app_.volume() ? app_.volume()->available : 0;
    cards_.refresh();
    largest_.show(firstFew(app_.insights().topFiles), app_.platform().clock.now());
    emit changed();
}

void FindingsModel::headline() {
    recoverable_ = app_.reclaimableBytes();
    if (!reviewable()) {
        line_ = tr("Nothing to reclaim right now — you scanned %1.").arg(byteFigure(scannedBytes(app_)));
        return;
    }
    const auto types = app_.sortedTypeTotals();
    const auto items = app_.reclaimables().size();
    line_ = types.empty()
                ? tr("across %1 items.").arg(items)
                : tr("across %1 items · most space: %2").arg(items).arg(lookOf(types.front().first, *theme_).name);
}

QList<RibbonSegment> FindingsModel::readSegments() const {
    QList<RibbonSegment> segments;
    const auto types = app_.sortedTypeTotals();
    for (const auto& [type, tally] : types) {
        if (tally.bytes < 1) continue;
        const FileTypeLook look = lookOf(type, *theme_);
        const bool isLargest = tally.bytes == types.front().second.bytes;
        segments.append({look.name, tally.bytes, byteFigure(tally.bytes), isLargest ? largestTypeColor : look.color});
    }
    return segments;
}

}  // namespace zelk

#include "moc_FindingsModel.cpp"
