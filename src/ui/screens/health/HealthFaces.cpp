// SPDX-License-Identifier: MIT
#include "ui/screens/health/HealthFaces.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "state/Figures.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

GaugeFace loadGauge(const QString& caption, double share, const QString& detail) {
    GaugeFace face;
    face.shown = true;
    face.value = share;
    face.percent = std::round(share * 100);
    face.level = loadLevel(share);
    face.caption = caption;
    face.detail = detail;
    return face;
}

QString memoryFigure(std::uint64_t bytes, const QLocale& locale) {
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return byteFigure(static_cast<std::int64_t>(std::min(bytes, most)), locale);
}

}  // namespace

HealthGradeFace HealthGradeFace::of(HealthGrade grade) {
    switch (grade) {
        case HealthGrade::excellent:
            return {tr("Excellent"), tr("Everything looks great — plenty of headroom."), {91, 200, 250}};
        case HealthGrade::good:
            return {tr("Good"), SystemTexts::of(SystemTexts::HealthGood), {47, 211, 165}};
        case HealthGrade::fair:
            return {tr("Fair"), tr("A cleanup would help free things up."), {245, 200, 75}};
        case HealthGrade::attention:
            return {tr("Requires Attention"), tr("Worth reclaiming space and easing load."), {245, 166, 35}};
        case HealthGrade::critical:
            break;
    }
    return {tr("Critical"), tr("Low on resources — clean up soon."), {255, 90, 77}};
}

QList<HealthGradeFace> HealthGradeFace::all() {
    QList<HealthGradeFace> faces;
    for (const HealthGrade grade : allHealthGrades) faces.append(of(grade));
    return faces;
}

GaugeFace GaugeFace::ofCpu(double usage, std::int64_t cores) {
    return loadGauge(tr("CPU"), usage, tr("%1 cores", "", forPlural(cores)).arg(cores));
}

GaugeFace GaugeFace::ofMemory(const MemoryStats& memory, const QLocale& locale) {
    return loadGauge(tr("Memory"), memoryFraction(memory), tr("%1 used").arg(memoryFigure(memory.used, locale)));
}

GaugeFace GaugeFace::ofDisk(const std::optional<VolumeInfo>& volume, const QLocale& locale) {
    if (!volume) return {};
    return loadGauge(tr("Disk"), diskFraction(*volume), tr("%1 free").arg(byteFigure(volume->available, locale)));
}

GaugeFace GaugeFace::ofBattery(const PowerInfo& power) {
    if (!power.hasBattery) return {};
    GaugeFace face;
    face.shown = true;
    face.value = static_cast<double>(power.percent) / 100;
    face.percent = static_cast<double>(power.percent);
    face.level = batteryLevel(power.percent);
    face.caption = power.charging ? tr("Charging") : tr("Battery");
    face.detail = power.onAC ? tr("on power") : tr("on battery");
    return face;
}

QString uptimeText(double seconds) {
    const UptimeParts parts = uptimeParts(seconds);
    switch (parts.largest) {
        case UptimeParts::Unit::days:
            return QCoreApplication::translate("HealthScreenModel", "%1d %2h").arg(parts.days).arg(parts.hours);
        case UptimeParts::Unit::hours:
            return QCoreApplication::translate("HealthScreenModel", "%1h %2m").arg(parts.hours).arg(parts.minutes);
        case UptimeParts::Unit::minutes:
            break;
    }
    return QCoreApplication::translate("HealthScreenModel", "%1m").arg(parts.minutes);
}

}  // namespace zelk

#include "moc_HealthFaces.cpp"
