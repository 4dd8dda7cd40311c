// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoreApplication>
#include <QLocale>
#include <QObject>
#include <QString>
#include <optional>

#include "platform/Vitals.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

/// Texts about the computer and its drive.
struct DeviceFace {
    Q_GADGET
    QML_VALUE_TYPE(deviceFace)
    Q_DECLARE_TR_FUNCTIONS(DeviceFace)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString detail MEMBER detail CONSTANT FINAL)
    Q_PROPERTY(double freeBytes MEMBER freeBytes CONSTANT FINAL)
    Q_PROPERTY(QString totalText MEMBER totalText CONSTANT FINAL)

public:
    QString name;
    QString detail;        ///< the known ones of chip, cores, memory and system
    double freeBytes = 0;  ///< of the drive
    QString totalText;     ///< empty if the drive is unknown

    static DeviceFace of(const DeviceInfo& device, const std::optional<VolumeInfo>& volume,
                         const QLocale& locale = userLocale());

    bool operator==(const DeviceFace&) const = default;
};

}  // namespace zelk
