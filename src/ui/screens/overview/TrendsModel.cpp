// SPDX-License-Identifier: MIT
#include "ui/screens/overview/TrendsModel.h"

#include "state/AppModel.h"
#include "ui/screens/overview/Growth.h"

namespace zelk {

namespace {

const QColor shrunkColor(50, 199, 123);
// A forecast beyond this many days is not alarming.
constexpr std::int64_t nearDays = 29;

}  // namespace

TrendsModel::TrendsModel(AppModel& app, QObject* parent) : QObject(parent), app_(app) {
    connect(&app, &AppModel::historyChanged, this, &TrendsModel::refresh);
    refresh();
}

void TrendsModel::setTheme(const ZelkTheme& theme) {
    theme_ = &theme;
    changes_.setTheme(theme);
    emit changed();
}

void TrendsModel::refresh() {
    const std::vector<SurveyRecord>& history = app_.history();
    shown_ = history.size() >= 2;
    delta_ = shown_ ? growth(history[history.size() - 2].totalScanned, history.back().totalScanned) : 0;
    tracked_ = static_cast<qsizetype>(history.size());
    totals_.clear();
    for (const SurveyRecord& record : history) totals_.append(static_cast<qreal>(record.totalScanned));

    const std::optional<std::int64_t> days = app_.daysUntilFull();
    forecast_ = days ? tr("≈ %1 days until full at this rate").arg(*days) : QString();
    forecastIsFar_ = days && *days > nearDays;

    const FolderChanges changes = app_.folderChanges().value_or(FolderChanges());
    changes_.show(changes);
    hasChanges_ = changes != FolderChanges();
    emit changed();
}

QString TrendsModel::arrow() const {
    return delta_ > 0 ? QStringLiteral("arrow.up.right") : QStringLiteral("arrow.down.right");
}
QColor TrendsModel::arrowColor() const {
    return delta_ > 0 ? theme_->alert : shrunkColor;
}
QString TrendsModel::arrowName() const {
    if (delta_ == 0) return tr("unchanged");
    return delta_ > 0 ? tr("grew") : tr("shrank");
}
QString TrendsModel::deltaLine() const {
    return tr("since your last scan · %1 tracked").arg(tracked_);
}
QColor TrendsModel::forecastColor() const {
    return forecastIsFar_ ? theme_->inkSoft : theme_->alert;
}

void TrendsModel::openChanges() {
    setShowChanges(hasChanges_);
}
void TrendsModel::closeChanges() {
    setShowChanges(false);
}

void TrendsModel::setShowChanges(bool show) {
    if (show == showChanges_) return;
    showChanges_ = show;
    emit showChangesChanged();
}

}  // namespace zelk

#include "moc_TrendsModel.cpp"
