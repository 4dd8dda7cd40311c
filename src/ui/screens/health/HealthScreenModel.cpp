// SPDX-License-Identifier: MIT
#include "ui/screens/health/HealthScreenModel.h"

#include <chrono>
#include <string>
#include <utility>

#include "platform/ByteFormat.h"
#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr std::chrono::milliseconds sampleInterval = std::chrono::seconds(2);

}  // namespace

HealthScreenModel::HealthScreenModel(AppModel& app, std::function<void()> openHelp)
    : app_(app), openHelp_(std::move(openHelp)), timer_(this) {
    timer_.setSingleShot(true);
    timer_.setInterval(sampleInterval);
    connect(&timer_, &QTimer::timeout, this, &HealthScreenModel::sample);
    connect(&app, &AppModel::selectionChanged, this, &HealthScreenModel::followSelection);
    connect(&app, &AppModel::scanPhaseChanged, this, &HealthScreenModel::followJunk);
    connect(&app, &AppModel::reclaimablesChanged, this, &HealthScreenModel::followJunk);
    beginVisit();
}

void HealthScreenModel::followSelection() {
    if (app_.selection() != Screen::health) {
        timer_.stop();
        model_.reset();
        // On the next visit the view may be seen, and then announced, before this model hears of it.
        assign(output_, QString(), &HealthScreenModel::outputChanged);
    } else if (!model_) {
        beginVisit();
        if (watched_) timer_.start();
    }
}

void HealthScreenModel::beginVisit() {
    model_ = std::make_unique<HealthModel>(app_.platform(), app_.admin());
    model_->setWatched(watched_);
    // Before anything is shown of it: without a volume, which only a sample knows, a gauge would vanish and come back.
    if (watched_) model_->refresh();
    connect(model_.get(), &HealthModel::sampled, this, &HealthScreenModel::takeSample);
    connect(model_.get(), &HealthModel::busyChanged, this, &HealthScreenModel::followBusy);
    connect(model_.get(), &HealthModel::outputChanged, this, &HealthScreenModel::followOutput);
    setShowScoreInfo(false);
    takeSample();
    followBusy();
    followJunk();
}

void HealthScreenModel::setWatched(bool watched) {
    if (watched == watched_) return;
    watched_ = watched;
    if (model_) model_->setWatched(watched);
    timer_.stop();
    sample();
    emit watchedChanged();
}

void HealthScreenModel::sample() {
    if (!watched_ || !model_) return;
    model_->refresh();
    timer_.start();
}

void HealthScreenModel::takeSample() {
    const HealthModel& now = *model_;
    assign(cpu_, GaugeFace::ofCpu(now.cpuUsage(), app_.device().cores), &HealthScreenModel::cpuChanged);
    assign(memory_, GaugeFace::ofMemory(now.memory()), &HealthScreenModel::memoryChanged);
    assign(disk_, GaugeFace::ofDisk(now.volume()), &HealthScreenModel::diskChanged);
    assign(battery_, GaugeFace::ofBattery(now.power()), &HealthScreenModel::batteryChanged);
    int shown = 0;
    for (const GaugeFace* gauge : {&cpu_, &memory_, &disk_, &battery_}) shown += gauge->shown ? 1 : 0;
    assign(gaugeCount_, shown, &HealthScreenModel::gaugeCountChanged);
    assign(uptime_, uptimeText(now.uptime()), &HealthScreenModel::uptimeChanged);
    assign(grade_, now.grade(), &HealthScreenModel::gradeChanged);
}

void HealthScreenModel::followBusy() {
    assign(busy_, model_->busy(), &HealthScreenModel::busyChanged);
}

void HealthScreenModel::followOutput() {
    output_ = printedText(model_->lastOutput().value_or(std::string()));
    emit outputChanged();
}

/// Not while the screen is hidden: a survey would change its texts.
void HealthScreenModel::followJunk() {
    if (!model_) return;
    const QString title = reclaimable() ? tr("Reclaim %1").arg(byteFigure(app_.safeBytes())) : tr("Find junk to clean");
    assign(junkTitle_, title, &HealthScreenModel::junkTitleChanged);
}

bool HealthScreenModel::reclaimable() const {
    return app_.scanPhase() == AppModel::ScanPhase::finished && app_.safeBytes() >= 1;
}

QString HealthScreenModel::chip() const {
    return displayText(app_.device().chip);
}
QString HealthScreenModel::cores() const {
    return groupedFigure(app_.device().cores);
}
QString HealthScreenModel::memorySize() const {
    return QString::fromStdString(memoryText(app_.device().memoryBytes));
}
QString HealthScreenModel::osVersion() const {
    return displayText(app_.device().osVersion);
}

void HealthScreenModel::setShowScoreInfo(bool show) {
    assign(showScoreInfo_, show, &HealthScreenModel::showScoreInfoChanged);
}

void HealthScreenModel::pressJunk() {
    if (busy_) return;
    if (!reclaimable()) return app_.setSelection(Screen::reclaim);
    // A second press would clean the same items again.
    if (!app_.removals().underWay()) app_.cleanSafeCaches();
}

void HealthScreenModel::freeMemory() {
    if (model_) model_->freeMemory();
}

void HealthScreenModel::flushDNS() {
    if (model_) model_->flushDNS();
}

void HealthScreenModel::findDuplicates() {
    if (!busy_) app_.setSelection(Screen::duplicates);
}

void HealthScreenModel::findLargeFiles() {
    if (!busy_) app_.setSelection(Screen::clutter);
}

void HealthScreenModel::learnMore() {
    setShowScoreInfo(false);
    openHelp_();
}

}  // namespace zelk

#include "moc_HealthScreenModel.cpp"
