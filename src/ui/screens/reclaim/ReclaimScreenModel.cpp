// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/ReclaimScreenModel.h"

#include <utility>

#include "state/AppModel.h"

namespace zelk {

ReclaimScreenModel::ReclaimScreenModel(AppModel& app)
    : SurveyedModule(app, Screen::reclaim,
                     {.title = tr("Reclaim"),
                      .subtitle = tr("Clear caches, logs, and developer junk — safely, to the Trash."),
                      .scanLabel = tr("Scan for junk"),
                      .scanningLabel = tr("Looking for reclaimable junk…")}),
      app_(app),
      cleanup_(app.platform(), app.removals()),
      categories_(app, [this](const std::vector<Reclaimable>& items) { reviewCategories(items); }),
      items_(app, cleanup_) {
    connect(&app, &AppModel::reclaimablesChanged, this, [this] {
        const std::size_t count = app_.reclaimables().size();
        if (onScreen_ && count != std::exchange(lastCount_, count)) cleanup_.seed(app_.reclaimables());
        follow();
    });
    connect(&app, &AppModel::audienceChanged, this, &ReclaimScreenModel::follow);
    connect(this, &ModuleScreenModel::phaseChanged, this, &ReclaimScreenModel::follow);
    connect(&cleanup_, &DevCleanupModel::showDryRunChanged, this, &ReclaimScreenModel::openOrClose);
}

bool ReclaimScreenModel::nothing() const {
    return results() && app_.reclaimables().empty();
}

bool ReclaimScreenModel::byCategory() const {
    return results() && !nothing() && app_.audience() == AppModel::Audience::normal;
}

bool ReclaimScreenModel::byItem() const {
    return results() && !nothing() && app_.audience() == AppModel::Audience::developer;
}

void ReclaimScreenModel::setOnScreen(bool onScreen) {
    if (onScreen == onScreen_) return;
    onScreen_ = onScreen;
    lastCount_ = app_.reclaimables().size();
    follow();
}

/// Prepares the visible list with its default selection.
void ReclaimScreenModel::follow() {
    if (onScreen_ && byItem()) cleanup_.seed(app_.reclaimables());
    if (onScreen_ && byCategory()) categories_.appear();
    emit faceChanged();
}

void ReclaimScreenModel::reviewCategories(const std::vector<Reclaimable>& items) {
    cleanup_.setAgeDays(0);  // the age filter of the item list must not hide any of them
    cleanup_.selectOnly(items);
    cleanup_.setShowDryRun(true);
}

void ReclaimScreenModel::openOrClose() {
    if (cleanup_.showDryRun())
        dryRun_ = std::make_unique<DryRunModel>(
            cleanup_, cleanup_.selectedItems(app_.reclaimables()), app_.platform(),
            DryRunModel::Actions{[this] { cleanup_.setShowDryRun(false); }, [this] { app_.scanAnew(); }});
    emit reviewingChanged();
}

}  // namespace zelk

#include "moc_ReclaimScreenModel.cpp"
