// SPDX-License-Identifier: MIT
#include "ui/screens/overview/TrendsModel.h"

#include <utility>

#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

ChangesModel::ChangesModel(QObject* parent)
    : RowModel(rows_,
               {{"heading", [](const Row& row) { return row.heading; }},
                {"kind", [](const Row& row) { return static_cast<int>(row.kind); }},
                {"name", [](const Row& row) { return nameText(row.change.path); }},
                {"path", [](const Row& row) { return displayText(row.change.path); }},
                {"size", sizeText}},
               parent) {}

void ChangesModel::show(const FolderChanges& changes) {
    beginResetModel();
    rows_.clear();
    add(Grew, changes.grew, tr("Grew (%1)"));
    add(Appeared, changes.appeared, tr("Appeared (%1)"));
    add(Vanished, changes.gone, tr("Vanished (%1)"));
    endResetModel();
    emit emptyChanged();
}

void ChangesModel::add(Kind kind, const std::vector<FolderChange>& changes, const QString& heading) {
    for (const FolderChange& change : changes)
        rows_.push_back({kind, change, &change == &changes.front() ? heading.arg(changes.size()) : QString()});
}

QString ChangesModel::sizeText(const Row& row) {
    const FolderChange& change = row.change;
    switch (row.kind) {
        case Grew:
            return inReadingOrder(byteFigure(change.newSize) + QStringLiteral("  ") +
                                  isolated(u'+' + byteFigure(sizeGrowth(change.oldSize, change.newSize))));
        case Appeared:
            return byteFigure(change.newSize);
        case Vanished:
            return byteFigure(change.oldSize);
    }
    return {};
}

TrendsModel::TrendsModel(AppModel& app, QObject* parent) : QObject(parent), app_(app) {
    connect(&app, &AppModel::historyChanged, this, &TrendsModel::refresh);
    refresh();
}

void TrendsModel::refresh() {
    constexpr std::int64_t nearDays = 29;  // a forecast beyond is not alarming
    const std::vector<SurveyRecord>& history = app_.history();
    shown_ = history.size() >= 2;
    delta_ = shown_ ? sizeGrowth(history[history.size() - 2].totalScanned, history.back().totalScanned) : 0;
    totals_.clear();
    for (const SurveyRecord& record : history) totals_.append(static_cast<qreal>(record.totalScanned));

    const std::optional<std::int64_t> days = app_.daysUntilFull();
    forecast_ = days ? tr("≈ %1 days until full at this rate", "", forPlural(*days)).arg(*days) : QString();
    alarming_ = days && *days <= nearDays;

    const FolderChanges changes = app_.folderChanges().value_or(FolderChanges());
    changes_.show(changes);
    hasChanges_ = changes != FolderChanges();
    emit changed();
}

QString TrendsModel::arrowName() const {
    if (delta_ == 0) return tr("unchanged");
    return grew() ? tr("grew") : tr("shrank");
}

QString TrendsModel::deltaLine() const {
    return tr("since your last scan · %1 tracked", "", static_cast<int>(totals_.size())).arg(totals_.size());
}

void TrendsModel::setShowChanges(bool show) {
    if (std::exchange(showChanges_, show) != show) emit showChangesChanged();
}

}  // namespace zelk

#include "moc_TrendsModel.cpp"
