// SPDX-License-Identifier: MIT
#include "ui/screens/module/SurveyedModule.h"

#include <utility>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr int progressInterval = 80;  // milliseconds

ModulePhase phaseOf(AppModel::ScanPhase phase) {
    switch (phase) {
        case AppModel::ScanPhase::idle:
            return ModulePhase::idle;
        case AppModel::ScanPhase::scanning:
            return ModulePhase::scanning;
        case AppModel::ScanPhase::finished:
            return ModulePhase::results;
    }
    return ModulePhase::idle;
}

}  // namespace

SurveyedModule::SurveyedModule(AppModel& app, Screen screen, ModuleTexts texts)
    : ModuleScreenModel(
          screen, std::move(texts), [&app] { app.startScan(); }, [&app] { app.cancelScan(); }),
      app_(app) {
    timer_.setSingleShot(true);
    timer_.setInterval(progressInterval);
    connect(&timer_, &QTimer::timeout, this, [this] { setScanDetail(displayText(app_.progressLine())); });
    connect(&app, &AppModel::scanPhaseChanged, this, &SurveyedModule::followPhase);
    connect(&app, &AppModel::progressChanged, this, &SurveyedModule::followProgress);
    followPhase();
}

/// When the phase begins, the counts are still those of the previous survey. The next tick updates them.
void SurveyedModule::followPhase() {
    setPhase(phaseOf(app_.scanPhase()));
    followProgress();
}

void SurveyedModule::followProgress() {
    if (!timer_.isActive()) timer_.start();
}

}  // namespace zelk

#include "moc_SurveyedModule.cpp"
