// SPDX-License-Identifier: MIT
#include "ui/screens/apps/UninstallModel.h"

#include <QPointer>
#include <utility>

#include "ui/screens/apps/AppTexts.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

UninstallModel::UninstallModel(AppsModel& apps) : apps_(apps) {}

void UninstallModel::ask(const AppEntry& app) {
    app_ = app;
    leftovers_.clear();
    obstacle_ = {};
    loading_ = true;
    rows_.show(app_, leftovers_, apps_.toldHome());
    emit changed();
    if (!std::exchange(open_, true)) emit openChanged();
    apps_.prepare(app_, [self = QPointer<UninstallModel>(this), number = ++asked_](const auto& preparation) {
        if (self) self->take(number, preparation);
    });
}

void UninstallModel::take(int number, const AppsModel::Preparation& preparation) {
    if (number != asked_ || !open_) return;
    leftovers_ = preparation.leftovers;
    obstacle_ = preparation.obstacle;
    app_.size = preparation.size;
    loading_ = false;
    rows_.show(app_, leftovers_, apps_.toldHome());
    emit changed();
}

QString UninstallModel::title() const {
    return tr("Uninstall %1").arg(displayText(app_.name));
}

QString UninstallModel::total() const {
    std::uint64_t bytes = app_.size;
    for (const AppsModel::Leftover& one : leftovers_) bytes += one.size;
    return byteFigure(static_cast<std::int64_t>(bytes));
}

QString UninstallModel::line() const {
    if (loading_) return tr("Looking for what it leaves behind…");
    if (obstacle_.reason != AppObstacle::Reason::none) return AppTexts::obstacle(obstacle_);
    return AppTexts::question(app_, static_cast<int>(leftovers_.size()), total());
}

QString UninstallModel::agreement() const {
    return goesToTrash(app_.kind) ? tr("Move %1 to Trash").arg(total()) : tr("Remove %1").arg(total());
}

bool UninstallModel::confirmable() const {
    return open_ && !loading_ && obstacle_.reason == AppObstacle::Reason::none;
}

void UninstallModel::confirm() {
    if (!confirmable()) return;
    apps_.uninstall(app_, leftovers_);
    close();
}

void UninstallModel::cancel() {
    close();
}

void UninstallModel::close() {
    if (!std::exchange(open_, false)) return;
    emit openChanged();
    emit changed();
}

}  // namespace zelk

#include "moc_UninstallModel.cpp"
