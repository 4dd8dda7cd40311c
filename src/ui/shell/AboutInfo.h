// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "platform/Vitals.h"
#include "ui/shell/NativeApplication.h"

namespace zelk {

/// What the About window tells of the application and the computer.
struct AboutInfo {
    Q_GADGET
    QML_VALUE_TYPE(aboutInfo)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString version MEMBER version FINAL)
    Q_PROPERTY(QString system MEMBER system FINAL)
    Q_PROPERTY(QString chip MEMBER chip FINAL)

public:
    AboutInfo() = default;
    AboutInfo(const BundleInfo& bundle, const DeviceInfo& device);

    QString name;
    QString version;  ///< "1.2 (34)", with a dash for what the bundle does not specify
    QString system;
    QString chip;  ///< empty if unknown

    bool operator==(const AboutInfo&) const = default;
};

}  // namespace zelk
