// SPDX-License-Identifier: MIT
#include "ui/screens/overview/SurveyScreenModel.h"

#include <chrono>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/ScreenLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

constexpr int progressInterval = 80;         // milliseconds: twelve texts a second
constexpr int countingInterval = 33;         // milliseconds, when no survey asks for the time
constexpr double progressDuration = 0.25;    // seconds
constexpr double spokenInterval = 3;         // seconds
constexpr double recoverableDuration = 0.9;  // seconds
constexpr double handoverSeconds = 1;        // longer than a person needs to notice

}  // namespace

QColor Feature::tint() const {
    return lookOf(screen).color;
}

SurveyScreenModel::SurveyScreenModel(AppModel& app, std::function<double()> now)
    : app_(app),
      features_{
          {QStringLiteral("sparkles"), tr("Reclaim junk"), Screen::reclaim},
          {QStringLiteral("doc.on.doc"), tr("Find duplicates"), Screen::duplicates},
          {QStringLiteral("tray.full"), tr("Largest files"), Screen::clutter},
          {QStringLiteral("circle.hexagongrid"), tr("Visual map"), Screen::lens},
      },
      findings_(app),
      trash_(app, app.workspace(), true),
      trends_(app),
      now_(std::move(now)) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &SurveyScreenModel::tick);
    connect(&app, &AppModel::scanPhaseChanged, this, &SurveyScreenModel::enterPhase);
    connect(&app, &AppModel::progressChanged, this, &SurveyScreenModel::followProgress);
    connect(&app, &AppModel::reclaimablesChanged, this, &SurveyScreenModel::aimRecoverable);
    connect(&app, &AppModel::volumeChanged, this, &SurveyScreenModel::deviceChanged);
    enterPhase();
    followProgress();  // of a survey that is under way already
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
    if (scanning()) return tr("scanning…");
    if (idle()) return tr("Scan %1").arg(SystemTexts::of(SystemTexts::WholeComputer));
    return tr("%1 recoverable, re-run").arg(byteFigure(app_.reclaimableBytes()));
}

DeviceFace SurveyScreenModel::device() const {
    return DeviceFace::of(app_.device(), app_.volume());
}

void SurveyScreenModel::setDark(bool dark) {
    if (dark == dark_) return;
    dark_ = dark;
    const ZelkTheme& theme = dark ? ZelkTheme::dark() : ZelkTheme::light();
    findings_.setTheme(theme);
    trends_.setTheme(theme);
    emit darkChanged();
}

void SurveyScreenModel::appear() {
    app_.readAbsentVolume();
}

void SurveyScreenModel::setCounting(bool counting) {
    counting_ = counting;
    if (counting) return;
    for (CountingFigure* figure : {&items_, &bytes_, &recoverable_}) figure->jump(figure->target());
    if (stale_) timer_.start(0);
}

void SurveyScreenModel::pressScan() {
    app_.startScan();
}
void SurveyScreenModel::cancel() {
    app_.cancelScan();
}

void SurveyScreenModel::handOver() {
    handedAt_ = now_();
}

bool SurveyScreenModel::takesKey() {
    const double time = now_();
    if (!handedAt_ || time - *handedAt_ >= handoverSeconds) return true;
    handedAt_ = time;
    return false;
}

void SurveyScreenModel::pressFeature(int row) {
    if (row >= 0 && row < features_.size()) app_.setSelection(features_[row].screen);
}

/// A new face is complete when it appears: its texts change before the phase does. The one that fades away keeps its
/// own for as long as it can be seen.
void SurveyScreenModel::enterPhase() {
    const double time = now_();
    for (CountingFigure* figure : {&items_, &bytes_, &recoverable_}) figure->stop(time);
    if (scanning()) {
        // The model still holds the figures and the path of the survey before: they change right after the phase.
        items_.jump(0);
        bytes_.jump(0);
        pathLine_.clear();
    } else if (finished()) {
        recoverable_.jump(0);
        aim(recoverable_, app_.reclaimableBytes(), recoverableDuration);
    }
    timer_.stop();
    spokenAt_ = time - spokenInterval;
    speak();
    refresh();
    if (scanning())
        refreshSoon();
    else if (stale_)
        startTimer();
    emit phaseChanged();
    emit buttonNameChanged();
}

void SurveyScreenModel::followProgress() {
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
        figure.aim(target, now_(), duration);
    else
        figure.jump(target);
}

/// With the next tick, which comes at once after a rest, yet never between two signals of one report.
void SurveyScreenModel::refreshSoon() {
    stale_ = true;
    if (!timer_.isActive()) timer_.start(0);
}

void SurveyScreenModel::startTimer() {
    timer_.start(scanning() ? progressInterval : countingInterval);
}

void SurveyScreenModel::tick() {
    if (!stale_) return;
    pathLine_ = shortenedPath(displayText(app_.currentPath()));
    refresh();
    speak();
    startTimer();
}

void SurveyScreenModel::speak() {
    const double time = now_();
    QString text;
    if (scanning()) {
        const bool unseen = app_.selection() != Screen::survey && !spokenProgress_.isEmpty();
        if (unseen || time - spokenAt_ < spokenInterval) return;
        text = tr("%1, %2 items").arg(byteFigure(bytes_.target()), groupedFigure(items_.target()));
    }
    spokenAt_ = time;
    if (text == spokenProgress_) return;
    spokenProgress_ = text;
    emit spokenProgressChanged();
}

void SurveyScreenModel::refresh() {
    const double time = now_();
    scanned_ = byteFigure(bytes_.at(time));
    recoverableText_ = byteFigure(recoverable_.at(time));
    itemsLine_ = tr("%1 items").arg(groupedFigure(items_.at(time)));
    stale_ = !(items_.settled(time) && bytes_.settled(time) && recoverable_.settled(time));
    emit figuresChanged();
}

double SurveyScreenModel::steadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace zelk

#include "moc_SurveyScreenModel.cpp"
