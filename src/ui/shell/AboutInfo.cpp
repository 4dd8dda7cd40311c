// SPDX-License-Identifier: MIT
#include "ui/shell/AboutInfo.h"

#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

QString orDash(const std::optional<QString>& text) {
    return text.value_or(QStringLiteral("—"));
}

}  // namespace

AboutInfo::AboutInfo(const BundleInfo& bundle, const DeviceInfo& device)
    : name(bundle.name.value_or(QStringLiteral("Zelk"))),
      version(isolated(QStringLiteral("%1 (%2)").arg(orDash(bundle.version), orDash(bundle.build)))),
      system(displayText(device.osVersion)),
      chip(displayText(device.chip)) {}

}  // namespace zelk

#include "moc_AboutInfo.cpp"
