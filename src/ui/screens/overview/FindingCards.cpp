// SPDX-License-Identifier: MIT
#include "ui/screens/overview/FindingCards.h"

#include <algorithm>

#include "state/AppModel.h"

namespace zelk {

namespace {

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

}  // namespace zelk

#include "moc_FindingCards.cpp"
