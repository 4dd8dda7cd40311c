// SPDX-License-Identifier: MIT
#include "ui/screens/overview/DeviceFace.h"

#include <QStringList>

#include "platform/ByteFormat.h"

namespace zelk {

DeviceFace DeviceFace::of(const DeviceInfo& device, const std::optional<VolumeInfo>& volume, const QLocale& locale) {
    QStringList known{displayText(device.chip), tr("%1 cores").arg(device.cores),
                      QString::fromStdString(memoryText(device.memoryBytes)), displayText(device.osVersion)};
    known.removeAll(QString());
    DeviceFace face;
    face.name = displayText(device.computerName);
    face.detail = known.join(QStringLiteral("  ·  "));
    if (volume) {
        face.freeBytes = static_cast<double>(volume->available);
        face.totalText = tr("of %1").arg(byteFigure(volume->total, locale));
    }
    return face;
}

}  // namespace zelk

#include "moc_DeviceFace.cpp"
