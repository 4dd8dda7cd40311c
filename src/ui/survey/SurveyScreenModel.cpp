// SPDX-License-Identifier: MIT
#include "ui/survey/SurveyScreenModel.h"

#include "state/AppModel.h"
#include "ui/text/DisplayText.h"

namespace zelk {

namespace {

constexpr int progressInterval = 80;         // milliseconds: twelve texts a second
constexpr int countingInterval = 33;         // milliseconds, when no survey asks for the time
constexpr double progressDuration = 0.25;    // seconds
constexpr double recoverableDuration = 0.9;  // seconds

}  // namespace

SurveyScreenModel::SurveyScreenModel(AppModel& app, QObject* parent) : QObject(parent), app_(app) {
    clock_.start();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &SurveyScreenModel::tick);
    connect(&app, &AppModel::scanPhaseChanged, this, &SurveyScreenModel::enterPhase);
    connect(&app, &AppModel::itemsScannedChanged, this, &SurveyScreenModel::aimFigures);
    connect(&app, &AppModel::bytesScannedChanged, this, &SurveyScreenModel::aimFigures);
    connect(&app, &AppModel::currentPathChanged, this, &SurveyScreenModel::aimFigures);
    connect(&app, &AppModel::reclaimablesChanged, this, &SurveyScreenModel::aimRecoverable);
    enterPhase();
    aimFigures();  // of a survey that is under way already
}

bool SurveyScreenModel::idle() const {
    return app_.scanPhase() == AppModel::ScanPhase::idle;
}
bool SurveyScreenModel::scanning() const {
    return app_.scanPhase() == AppModel::ScanPhase::scanning;
}
bool SurveyScreenModel::finished() const {
    return app_.scanPhase() == AppModel::ScanPhase::finished;
}

QString SurveyScreenModel::buttonName() const {
    if (scanning()) return scanningFace_.caption;
    if (idle()) return idleFace().title + u' ' + idleFace().caption;
    const ScanFace face = ScanFace::finished(app_.reclaimableBytes());
    return QStringLiteral("%1 %2, %3").arg(face.title, face.caption, face.hint);
}

QString SurveyScreenModel::idleLine() const {
    return QStringLiteral("Scan every corner of your drive in seconds.");
}
QString SurveyScreenModel::cancelLabel() const {
    return QStringLiteral("cancel");
}
QString SurveyScreenModel::finishedLine() const {
    return QStringLiteral("Tap to scan again · details below");
}

void SurveyScreenModel::setCounting(bool counting) {
    counting_ = counting;
}

void SurveyScreenModel::pressScan() {
    app_.startScan();
}
void SurveyScreenModel::cancel() {
    app_.cancelScan();
}

void SurveyScreenModel::pressFeature(int row) {
    const auto& features = FeatureList::features();
    if (row < 0 || static_cast<std::size_t>(row) >= features.size()) return;
    app_.setSelection(features[static_cast<std::size_t>(row)].screen);
}

/// A new face is complete when it appears: its texts change before the phase does.
void SurveyScreenModel::enterPhase() {
    timer_.stop();
    items_.jump(0);  // the model still holds the figures of the survey before when a new one begins
    bytes_.jump(0);
    recoverable_.jump(0);
    if (finished()) aim(recoverable_, app_.reclaimableBytes(), recoverableDuration);
    refresh();
    if (stale_) startTimer();
    emit phaseChanged();
    emit buttonNameChanged();
}

void SurveyScreenModel::aimFigures() {
    if (!scanning()) return;
    aim(items_, app_.itemsScanned(), progressDuration);
    aim(bytes_, app_.bytesScanned(), progressDuration);
    refreshSoon();
}

void SurveyScreenModel::aimRecoverable() {
    if (!finished()) return;
    aim(recoverable_, app_.reclaimableBytes(), recoverableDuration);
    refreshSoon();
    emit buttonNameChanged();
}

void SurveyScreenModel::aim(CountingFigure& figure, std::int64_t target, double duration) {
    if (counting_)
        figure.aim(target, now(), duration);
    else
        figure.jump(target);
}

/// At once after a rest, else with the next tick.
void SurveyScreenModel::refreshSoon() {
    if (timer_.isActive()) {
        stale_ = true;
        return;
    }
    refresh();
    startTimer();
}

void SurveyScreenModel::startTimer() {
    timer_.start(scanning() ? progressInterval : countingInterval);
}

void SurveyScreenModel::tick() {
    if (!stale_) return;
    refresh();
    startTimer();
}

void SurveyScreenModel::refresh() {
    const double time = now();
    scanningFace_ = ScanFace::scanning(bytes_.at(time));
    finishedFace_ = ScanFace::finished(recoverable_.at(time));
    itemsLine_ = QStringLiteral("%1 items").arg(groupedFigure(items_.at(time)));
    pathLine_ = shortenedPath(displayText(app_.currentPath()));
    stale_ = !(items_.settled(time) && bytes_.settled(time) && recoverable_.settled(time));
    emit figuresChanged();
}

double SurveyScreenModel::now() const {
    return static_cast<double>(clock_.nsecsElapsed()) * 1e-9;
}

}  // namespace zelk
