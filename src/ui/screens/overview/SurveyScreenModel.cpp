// SPDX-License-Identifier: MIT
#include "ui/screens/overview/SurveyScreenModel.h"

#include <QStringList>
#include <array>
#include <chrono>
#include <utility>

#include "platform/ByteFormat.h"
#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

constexpr int refreshInterval = 80;    // milliseconds
constexpr double spokenInterval = 3;   // seconds
constexpr double handoverSeconds = 1;  // longer than a person needs to notice

constexpr std::array featureScreens{Screen::reclaim, Screen::duplicates, Screen::clutter, Screen::lens};

ScreenLook titled(Screen screen, const QString& title) {
    ScreenLook look = lookOf(screen);
    look.title = title;
    return look;
}

}  // namespace

DeviceFace DeviceFace::of(const DeviceInfo& device, const std::optional<VolumeInfo>& volume, const QLocale& locale) {
    QStringList known{displayText(device.chip), tr("%1 cores", "", forPlural(device.cores)).arg(device.cores),
                      isolated(QString::fromStdString(memoryText(device.memoryBytes))), displayText(device.osVersion)};
    known.removeAll(QString());
    DeviceFace face;
    face.name = displayText(device.computerName);
    face.detail = inReadingOrder(known.join(QStringLiteral("  ·  ")));
    if (volume) {
        face.freeBytes = static_cast<double>(volume->available);
        face.totalText = tr("of %1").arg(byteFigure(volume->total, locale));
    }
    return face;
}

SurveyScreenModel::SurveyScreenModel(AppModel& app, std::function<double()> now)
    : app_(app),
      features_{titled(featureScreens[0], tr("Reclaim junk")), titled(featureScreens[1], tr("Find duplicates")),
                titled(featureScreens[2], tr("Largest files")), titled(featureScreens[3], tr("Visual map"))},
      findings_(app),
      trash_(app, true),
      trends_(app),
      now_(std::move(now)) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &SurveyScreenModel::refresh);
    connect(&app, &AppModel::scanPhaseChanged, this, &SurveyScreenModel::enterPhase);
    connect(&app, &AppModel::progressChanged, this, &SurveyScreenModel::refreshSoon);
    connect(&app, &AppModel::reclaimablesChanged, this, &SurveyScreenModel::refreshRecoverable);
    connect(&app, &AppModel::volumeChanged, this, &SurveyScreenModel::deviceChanged);
    enterPhase();
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

QString SurveyScreenModel::itemsPhrase() const {
    return tr("%1 items", "", forPlural(items_));
}

DeviceFace SurveyScreenModel::device() const {
    return DeviceFace::of(app_.device(), app_.volume());
}

void SurveyScreenModel::appear() {
    app_.readAbsentVolume();
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
    if (row >= 0 && row < features_.size()) app_.setSelection(featureScreens.at(static_cast<std::size_t>(row)));
}

/// A new face is complete when it appears: its figures change before the phase does. The one that fades away keeps its
/// own for as long as it can be seen.
void SurveyScreenModel::enterPhase() {
    if (scanning()) {
        // The model still holds the figures and the path of the survey before: they change right after the phase.
        items_ = scanned_ = 0;
        pathLine_.clear();
    } else if (finished()) {
        recoverable_ = 0;
    }
    timer_.stop();
    spokenAt_ = now_() - spokenInterval;
    speak();
    emit figuresChanged();
    emit phaseChanged();
    emit buttonNameChanged();
    refreshSoon();
    refreshRecoverable();
}

/// Updates on the next turn of the event loop after a pause, but never between two signals of one report.
void SurveyScreenModel::refreshSoon() {
    if (!scanning()) return;
    stale_ = true;
    if (!timer_.isActive()) timer_.start(0);
}

void SurveyScreenModel::refresh() {
    if (!std::exchange(stale_, false)) return;
    items_ = app_.itemsScanned();
    scanned_ = app_.bytesScanned();
    pathLine_ = shortenedPath(displayText(app_.currentPath()));
    emit figuresChanged();
    speak();
    timer_.start(refreshInterval);
}

void SurveyScreenModel::refreshRecoverable() {
    if (!finished()) return;
    recoverable_ = app_.reclaimableBytes();
    emit figuresChanged();
    emit buttonNameChanged();
}

void SurveyScreenModel::speak() {
    const double time = now_();
    QString text;
    if (scanning()) {
        const bool unseen = app_.selection() != Screen::survey && !spokenProgress_.isEmpty();
        if (unseen || time - spokenAt_ < spokenInterval) return;
        text = tr("%1, %2 items", "", forPlural(items_)).arg(byteFigure(scanned_), groupedFigure(items_));
    }
    spokenAt_ = time;
    if (std::exchange(spokenProgress_, text) != text) emit spokenProgressChanged();
}

double SurveyScreenModel::steadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace zelk

#include "moc_SurveyScreenModel.cpp"
