// SPDX-License-Identifier: MIT
// What the health screen shows of a grade and of a gauge.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QCoreApplication>
#include <QList>
#include <QLocale>
#include <QString>

#include "state/UserLocale.h"
#include "system/HealthScore.h"

namespace zelk {

/// A grade in words and in its colour, which is the same in both themes.
struct HealthGradeFace {
    Q_GADGET
    QML_VALUE_TYPE(healthGradeFace)
    Q_DECLARE_TR_FUNCTIONS(HealthGradeFace)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString summary MEMBER summary FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)

public:
    QString label;
    QString summary;
    QColor color;

    static HealthGradeFace of(HealthGrade grade);
    /// All of them, in order.
    static QList<HealthGradeFace> all();

    bool operator==(const HealthGradeFace&) const = default;
};

/// What a RingGauge shows.
struct GaugeFace {
    Q_GADGET
    QML_VALUE_TYPE(gaugeFace)
    Q_DECLARE_TR_FUNCTIONS(GaugeFace)
    Q_PROPERTY(bool shown MEMBER shown FINAL)
    Q_PROPERTY(double value MEMBER value FINAL)
    Q_PROPERTY(double percent MEMBER percent FINAL)
    Q_PROPERTY(int level READ levelIndex FINAL)
    Q_PROPERTY(QString caption MEMBER caption FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)

public:
    bool shown = false;
    double value = 0;    ///< 0 to 1
    double percent = 0;  ///< the figure in the middle, a whole number
    LoadLevel level = LoadLevel::normal;
    QString caption;
    QString detail;

    int levelIndex() const { return static_cast<int>(level); }

    static GaugeFace ofCpu(double usage, std::int64_t cores);
    static GaugeFace ofMemory(const MemoryStats& memory, const QLocale& locale = userLocale());
    /// Not shown without a volume.
    static GaugeFace ofDisk(const std::optional<VolumeInfo>& volume, const QLocale& locale = userLocale());
    /// Not shown without a battery.
    static GaugeFace ofBattery(const PowerInfo& power);

    bool operator==(const GaugeFace&) const = default;
};

/// The colours of a gauge by level, but for the highest, which is the theme's alert.
inline QColor normalLoadColor() {
    return {50, 199, 123};
}
inline QColor elevatedLoadColor() {
    return {245, 166, 35};
}

/// An uptime as "3d 4h", "4h 5m" or "5m".
QString uptimeText(double seconds);

}  // namespace zelk
