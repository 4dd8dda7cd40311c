// SPDX-License-Identifier: MIT
#include "ui/screens/overview/FindingsModel.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/FileTypeLook.h"

namespace zelk {

namespace {

/// The surveyed bytes. With a single scan root, its own size.
std::int64_t scannedBytes(const AppModel& app) {
    const NodeRef& root = app.root();
    if (!root) return app.bytesScanned();
    const FSNode* const only = root->onlyChild();
    return only ? only->size : root->size;
}

QString unreadText(std::int64_t folders) {
    if (folders < 1) return {};
    if (folders == 1) return FindingsModel::tr("1 folder could not be read.");
    return FindingsModel::tr("%1 folders could not be read.", "", forPlural(folders)).arg(groupedFigure(folders));
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

}  // namespace

FindingsModel::FindingsModel(AppModel& app, QObject* parent)
    : QObject(parent),
      app_(app),
      cards_{lookOf(Screen::reclaim),
             lookOf(Screen::clutter),
             {tr("Downloads"), {}, QStringLiteral("arrow.down.circle"), QColor(86, 194, 245)},
             lookOf(Screen::system)} {
    for (const auto changedField : {&AppModel::scanPhaseChanged, &AppModel::reclaimablesChanged,
                                    &AppModel::insightsChanged, &AppModel::rootChanged, &AppModel::volumeChanged})
        connect(&app, changedField, this, &FindingsModel::refresh);
    refresh();
}

void FindingsModel::review() {
    app_.setSelection(Screen::reclaim);
}
void FindingsModel::seeAll() {
    app_.setSelection(Screen::clutter);
}

void FindingsModel::openCard(int card) {
    constexpr std::array modules{Screen::reclaim, Screen::clutter, Screen::clutter, Screen::system};
    if (card >= 0 && card < std::ssize(modules)) app_.setSelection(modules.at(static_cast<std::size_t>(card)));
}

/// Skipped during a survey, whose results are not known yet and whose fields change many times per second.
void FindingsModel::refresh() {
    if (app_.scanPhase() != AppModel::ScanPhase::finished) return;
    headline();
    unreadLine_ = unreadText(app_.blockedPaths());
    segments_ = readSegments();
    freeBytes_ = app_.volume() ? app_.volume()->available : 0;
    cardBytes_ = {static_cast<qreal>(app_.reclaimableBytes()), static_cast<qreal>(largeFileBytes(app_)),
                  static_cast<qreal>(downloadsBytes(app_)), static_cast<qreal>(purgeableBytes(app_))};
    const auto items = std::ssize(app_.reclaimables());
    const auto files = std::ssize(app_.insights().topFiles);
    cardDetails_ = {tr("%1 items of junk", "", forPlural(items)).arg(items),
                    tr("%1 large files", "", forPlural(files)).arg(files), tr("review what landed here"),
                    tr("purgeable & snapshots")};
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
    const auto items = std::ssize(app_.reclaimables());
    line_ = types.empty() ? tr("across %1 items.", "", forPlural(items)).arg(items)
                          : tr("across %1 items · most space: %2", "", forPlural(items))
                                .arg(items)
                                .arg(lookOf(types.front().first).name);
}

QList<RibbonSegment> FindingsModel::readSegments() const {
    const QColor largestTypeColor(255, 59, 48);
    QList<RibbonSegment> segments;
    const auto types = app_.sortedTypeTotals();
    for (const auto& [type, tally] : types) {
        if (tally.bytes < 1) continue;
        const FileTypeLook look = lookOf(type);
        const bool isLargest = tally.bytes == types.front().second.bytes;
        segments.append({look.name, tally.bytes, byteFigure(tally.bytes), isLargest ? largestTypeColor : look.color});
    }
    return segments;
}

}  // namespace zelk

#include "moc_FindingsModel.cpp"
