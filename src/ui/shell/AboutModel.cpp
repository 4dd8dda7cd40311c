// SPDX-License-Identifier: MIT
#include "ui/shell/AboutModel.h"

#include "ui/theme/DisplayText.h"

namespace zelk {

AboutModel::AboutModel(const BundleInfo& bundle, const DeviceInfo& device)
    : name_(bundle.name.value_or(QStringLiteral("Zelk"))) {
    const QString absent = QStringLiteral("—");
    rows_.append(
        {tr("Version"), QStringLiteral("%1 (%2)").arg(bundle.version.value_or(absent), bundle.build.value_or(absent))});
    rows_.append({tr("System"), displayText(device.osVersion)});
    if (!device.chip.empty()) rows_.append({tr("Chip"), displayText(device.chip)});
}

}  // namespace zelk

#include "moc_AboutModel.cpp"
