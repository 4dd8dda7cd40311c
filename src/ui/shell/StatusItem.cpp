// SPDX-License-Identifier: MIT
#include "ui/shell/StatusItem.h"

#include <utility>

#include "state/AppModel.h"
#include "ui/shell/Application.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

StatusMenu::StatusMenu(AppModel& app, std::function<void()> openZelk, std::function<void()> quit)
    : app_(app), openZelk_(std::move(openZelk)), quit_(std::move(quit)) {
    timer_.setSingleShot(true);
    timer_.setInterval(200);
    connect(&timer_, &QTimer::timeout, this, &StatusMenu::changed);
    const auto soon = [this] {
        if (!timer_.isActive()) timer_.start();
    };
    connect(&app, &AppModel::volumeChanged, this, soon);
    connect(&app, &AppModel::scanPhaseChanged, this, soon);
    connect(&app, &AppModel::progressChanged, this, soon);
    connect(&app, &AppModel::reclaimablesChanged, this, soon);
}

std::vector<StatusEntry> StatusMenu::entries() const {
    const bool scanning = app_.scanPhase() == AppModel::ScanPhase::scanning;
    const bool finished = app_.scanPhase() == AppModel::ScanPhase::finished;
    std::vector<StatusEntry> entries;
    entries.push_back({tr("Free space: %1").arg(byteFigure(app_.freeBytes())), {}});
    entries.push_back({});
    entries.push_back({tr("Open Zelk"), openZelk_});
    if (scanning)
        entries.push_back({tr("Surveying… %1").arg(byteFigure(app_.bytesScanned())), {}});
    else
        entries.push_back({tr("Run survey"), [this] { runSurvey(); }});
    if (const std::int64_t safe = app_.safeBytes(); finished && safe >= 1)
        entries.push_back({tr("Clean safe caches (%1)").arg(byteFigure(safe)), [this] { app_.cleanSafeCaches(); }});
    entries.push_back({});
    entries.push_back({tr("Quit Zelk"), quit_});
    return entries;
}

void StatusMenu::runSurvey() const {
    app_.setSelection(Screen::survey);
    app_.startScan();
    openZelk_();
}

StatusItem::StatusItem(StatusMenu& menu, std::unique_ptr<Tray> tray) : menu_(menu), tray_(std::move(tray)) {
    connect(&menu, &StatusMenu::changed, this, &StatusItem::follow);
    connect(tray_.get(), &Tray::changed, this, &StatusItem::followTray);
    follow();
}

StatusItem::~StatusItem() {
    if (icon_ != nullptr) icon_->hide();
}

/// Creates the icon once: Qt shows it again when a tray comes back.
void StatusItem::followTray() {
    if (tray_->isThere() && icon_ == nullptr) {
        icon_ = new QSystemTrayIcon(statusIcon(), this);
        icon_->setToolTip(QStringLiteral("Zelk"));
        icon_->setContextMenu(&shown_);
        connect(&shown_, &QMenu::aboutToShow, this, &StatusItem::follow);
        icon_->show();
    }
    emit presentChanged();
}

/// Updates entries in place if only their texts change, so that an open menu does not jump.
void StatusItem::follow() {
    const std::vector<StatusEntry> entries = menu_.entries();
    const auto sameKind = [](const QAction& action, const StatusEntry& entry) {
        return action.isSeparator() == entry.isDivider() &&
               action.isEnabled() == (entry.run != nullptr || entry.isDivider());
    };
    const QList<QAction*> before = shown_.actions();
    bool same = before.size() == static_cast<qsizetype>(entries.size());
    for (qsizetype at = 0; same && at < before.size(); ++at)
        same = sameKind(*before[at], entries[static_cast<std::size_t>(at)]);
    if (!same) {
        shown_.clear();
        for (const StatusEntry& entry : entries) {
            QAction* action = entry.isDivider() ? shown_.addSeparator() : shown_.addAction(QString());
            action->setEnabled(entry.run != nullptr || entry.isDivider());
            if (entry.run) connect(action, &QAction::triggered, this, entry.run);
        }
    }
    const QList<QAction*> actions = shown_.actions();
    for (qsizetype at = 0; at < actions.size(); ++at) actions[at]->setText(entries[static_cast<std::size_t>(at)].text);
}

}  // namespace zelk

#include "moc_StatusItem.cpp"
