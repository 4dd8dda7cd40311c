// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <optional>
#include <string>

#include "platform/Platform.h"
#include "state/AdminRunner.h"
#include "system/HealthScore.h"

namespace zelk {

/// The vitals of the machine as of the last sample, and the two actions that may improve them. One for each visit of
/// the health screen: nothing is kept from one to the next. Main thread.
///
/// A probe that fails shows as zeros, or as an absent volume. A handler must not delete it other than by deleteLater().
class HealthModel : public QObject {
    Q_OBJECT

public:
    /// Reads memory, power and uptime at once; the volume and the load are known after refresh(). The services and
    /// `admin` must outlive it. A command that is running when it goes ends without it.
    HealthModel(const Platform& platform, AdminRunner& admin, QObject* parent = nullptr);

    /// The share of busy time between the last two samples, 0 to 1. 0 until there were two.
    double cpuUsage() const { return readings_.cpuUsage; }
    const MemoryStats& memory() const { return readings_.memory; }
    /// The volume of the home folder.
    const std::optional<VolumeInfo>& volume() const { return readings_.volume; }
    const PowerInfo& power() const { return readings_.power; }
    /// Seconds.
    double uptime() const { return uptime_; }
    /// Whether an action is under way.
    bool busy() const { return busy_; }
    /// The text of the last action that has ended, as the tool wrote it.
    const std::optional<std::string>& lastOutput() const { return lastOutput_; }

    /// Computed from the last sample at each call.
    double score() const { return healthScore(readings_); }
    HealthGrade grade() const { return gradeOf(score()); }

    /// Whether somebody sees the readings, as is assumed at first. If nobody does, no action takes a sample.
    void setWatched(bool watched) { watched_ = watched; }

    /// Takes a sample of everything.
    void refresh();
    /// Asks for an administrator, frees memory and takes a sample. Does nothing while busy, like flushDNS().
    void freeMemory();
    /// Flushes the DNS cache, which changes nothing that is sampled.
    void flushDNS();

signals:
    void sampled();  ///< refresh() has read everything; the values may be the same as before
    void busyChanged();
    void outputChanged();  ///< an action has ended, perhaps with the text of the one before

private:
    void run(const std::string& line, bool refreshes);
    void finish(const std::string& text);

    Platform platform_;
    AdminRunner& admin_;
    std::string home_;
    HealthReadings readings_;
    double uptime_ = 0;
    std::optional<CPUTicks> prevTicks_;
    bool watched_ = true;
    bool busy_ = false;
    std::optional<std::string> lastOutput_;
};

}  // namespace zelk
