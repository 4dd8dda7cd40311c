// SPDX-License-Identifier: MIT
#include "ui/screens/module/ModuleScreenModel.h"

#include <utility>

#include "state/AppModel.h"
#include "ui/controls/AccessibleText.h"
#include "ui/theme/ScreenLook.h"

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

ModuleScreenModel::ModuleScreenModel(Screen screen, ModuleTexts texts, std::function<void()> onScan,
                                     std::function<void()> onCancel)
    : screen_(screen), texts_(std::move(texts)), onScan_(std::move(onScan)), onCancel_(std::move(onCancel)) {
    if (texts_.title.isEmpty()) texts_.title = lookOf(screen).title;
}

QString ModuleScreenModel::symbol() const {
    return lookOf(screen_).symbol;
}
QColor ModuleScreenModel::tint() const {
    return lookOf(screen_).color;
}

void ModuleScreenModel::setPhase(ModulePhase phase) {
    if (phase == phase_) return;
    phase_ = phase;
    emit phaseChanged();
}

void ModuleScreenModel::setScanDetail(const QString& detail) {
    if (detail == scanDetail_) return;
    scanDetail_ = detail;
    emit scanDetailChanged();
}

QString ModuleScreenModel::doing() const {
    return AccessibleText::joined({texts_.scanningLabel, toldShare_});
}

void ModuleScreenModel::setShare(double share, const QString& told) {
    if (share == share_ && told == toldShare_) return;
    share_ = share;
    toldShare_ = told;
    emit shareChanged();
}

void ModuleScreenModel::scan() {
    if (onScan_) onScan_();
}

void ModuleScreenModel::cancel() {
    if (onCancel_ && scanning()) onCancel_();
}

SurveyedModule::SurveyedModule(AppModel& app, Screen screen, ModuleTexts texts)
    : ModuleScreenModel(
          screen, std::move(texts), [&app] { app.startScan(); }, [&app] { app.cancelScan(); }),
      app_(app) {
    timer_.setSingleShot(true);
    timer_.setInterval(progressInterval);
    connect(&timer_, &QTimer::timeout, this, [this] { setScanDetail(QString::fromStdString(app_.progressLine())); });
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

#include "moc_ModuleScreenModel.cpp"
