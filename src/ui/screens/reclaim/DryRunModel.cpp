// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/DryRunModel.h"

#include <algorithm>
#include <utility>

#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

QString symbolOf(const Reclaimable& item) {
    return item.method.kind == ReclaimMethod::Kind::command ? QStringLiteral("terminal") : QStringLiteral("trash");
}

QString sizeOf(const Reclaimable& item) {
    return byteFigure(static_cast<std::int64_t>(item.size));
}

QString methodOf(const Reclaimable& item) {
    return item.method.kind == ReclaimMethod::Kind::trash ? DryRunRows::tr("Trash")
                                                          : displayText(methodSummary(item.method));
}

}  // namespace

DryRunRows::DryRunRows(std::vector<Reclaimable> items)
    : RowModel(items_, {{"symbol", symbolOf},
                        {"name", [](const Reclaimable& item) { return nameText(item.path); }},
                        {"folder", [](const Reclaimable& item) { return folderText(item.path); }},
                        {"figure", sizeOf},
                        {"method", methodOf},
                        {"spoken",
                         [](const Reclaimable& item) {
                             return AccessibleText::joined(
                                 {nameText(item.path), sizeOf(item), methodOf(item), folderText(item.path)});
                         }}}),
      items_(std::move(items)) {}

DryRunModel::DryRunModel(DevCleanupModel& model, std::vector<Reclaimable> items, const Platform& platform,
                         Actions actions)
    : model_(model), platform_(platform), actions_(std::move(actions)), rows_(std::move(items)) {
    connect(&model, &DevCleanupModel::isCleaningChanged, this, [this] {
        if (!isCleaning() || model_.isCleaning()) return;
        phase_ = Phase::done;
        emit phaseChanged();
    });
    connect(&model, &DevCleanupModel::progressChanged, this, &DryRunModel::progressChanged);
}

QString DryRunModel::line() const {
    const std::vector<Reclaimable>& items = rows_.items();
    const auto toTrash = std::count_if(items.begin(), items.end(), [](const Reclaimable& item) {
        return item.method.kind == ReclaimMethod::Kind::trash;
    });
    return tr("%1 to Trash · %2 via command · %3 to recover")
        .arg(QString::number(toTrash), QString::number(static_cast<std::ptrdiff_t>(items.size()) - toTrash),
             byteFigure(totalSize(items)));
}

void DryRunModel::setHardDelete(bool hardDelete) {
    if (!isReview() || hardDelete == hardDelete_) return;
    hardDelete_ = hardDelete;
    emit hardDeleteChanged();
}

QString DryRunModel::confirmLabel() const {
    return (hardDelete_ ? tr("Delete %1 permanently") : tr("Move %1 to Trash"))
        .arg(byteFigure(totalSize(rows_.items())));
}

double DryRunModel::share() const {
    if (!isCleaning()) return 0;
    const RemovalsModel::Progress now = model_.progress();
    return now.items == 0 ? 0 : static_cast<double>(now.done) / static_cast<double>(now.items);
}

QString DryRunModel::progress() const {
    if (!isCleaning()) return {};
    const RemovalsModel::Progress now = model_.progress();
    return tr("%1 of %2").arg(now.done).arg(now.items);
}

QString DryRunModel::result() const {
    int gone = 0;
    std::size_t failed = 0;
    for (const Cleaner::Result& one : model_.lastResults()) {
        if (wasRemoved(one) && one.item.size >= 1) ++gone;
        if (std::holds_alternative<Cleaner::Failed>(one.status)) ++failed;
    }
    QString line = (gone == 1 ? tr("%1 · %2 item") : tr("%1 · %2 items", "", gone))
                       .arg(byteFigure(model_.reclaimedBytes()))
                       .arg(gone);
    if (failed > 0) line += tr(" · %1 skipped").arg(failed);
    return line;
}

bool DryRunModel::anySkipped() const {
    const auto& results = model_.lastResults();
    return std::any_of(results.begin(), results.end(),
                       [](const Cleaner::Result& one) { return std::holds_alternative<Cleaner::Failed>(one.status); });
}

QVariantList DryRunModel::skipped() const {
    QVariantList all;
    for (const Cleaner::Result& one : model_.lastResults()) {
        if (const auto* failed = std::get_if<Cleaner::Failed>(&one.status))
            all.append(QVariantMap{{QStringLiteral("name"), displayText(one.item.path)},
                                   {QStringLiteral("reason"), displayText(failed->error)}});
    }
    return all;
}

void DryRunModel::cancel() {
    if (!isReview() || std::exchange(left_, true)) return;
    const Actions actions = actions_;  // a copy, since dismiss() may destroy this
    actions.dismiss();
}

void DryRunModel::confirm() {
    if (!confirmable() || left_ || model_.isCleaning()) return;
    phase_ = Phase::cleaning;
    emit phaseChanged();
    model_.clean(rows_.items(), hardDelete_);
    emit progressChanged();
}

void DryRunModel::emptyTrash() {
    if (!emptyable() || emptyingTrash_ || left_) return;
    emptyingTrash_ = true;
    emit phaseChanged();
    auto told = [this, sender = mainThread_.sender()] {
        sender.post([this] {
            emptyingTrash_ = false;
            trashEmptied_ = true;
            emit phaseChanged();
        });
    };
    Cleaner::emptyTrash(platform_, std::move(told), model_.removals().begin(1));
}

void DryRunModel::finish() {
    if (!isDone() || emptyingTrash_ || std::exchange(left_, true)) return;
    const Actions actions = actions_;  // a copy, since dismiss() may destroy this
    actions.dismiss();
    actions.rescan();
}

void DryRunModel::close() {
    isReview() ? cancel() : finish();
}

}  // namespace zelk

#include "moc_DryRunModel.cpp"
