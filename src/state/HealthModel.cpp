// SPDX-License-Identifier: MIT
#include "state/HealthModel.h"

#include <QPointer>

#include "platform/VitalsArithmetic.h"
#include "system/MaintenanceLines.h"

namespace zelk {

HealthModel::HealthModel(const Platform& platform, AdminRunner& admin, QObject* parent)
    : QObject(parent), platform_(platform), admin_(admin), home_(platform.locations.home()) {
    readings_.memory = platform_.vitals.memory();
    readings_.power = platform_.vitals.power();
    uptime_ = platform_.vitals.uptime();
}

void HealthModel::refresh() {
    const auto [usage, ticks] = usageSince(prevTicks_, platform_.vitals.ticks());
    if (ticks) {
        readings_.cpuUsage = usage;
        prevTicks_ = ticks;
    }
    readings_.memory = platform_.vitals.memory();
    readings_.volume = platform_.vitals.volume(home_);
    readings_.power = platform_.vitals.power();
    uptime_ = platform_.vitals.uptime();
    emit sampled();
}

void HealthModel::freeMemory() {
    run(freeMemoryLine(platform_.system), true);
}

void HealthModel::flushDNS() {
    run(flushDNSLine(platform_.system), false);
}

void HealthModel::run(const std::string& line, bool refreshes) {
    if (busy_) return;
    busy_ = true;
    emit busyChanged();
    // The question to the user may stay open for longer than this model lives.
    admin_.run(line, [self = QPointer<HealthModel>(this), refreshes](const std::string& text) {
        if (!self) return;
        self->finish(text);
        if (refreshes && self->watched_) self->refresh();
    });
}

void HealthModel::finish(const std::string& text) {
    lastOutput_ = text;
    busy_ = false;
    emit busyChanged();
    emit outputChanged();
}

}  // namespace zelk

#include "moc_HealthModel.cpp"
