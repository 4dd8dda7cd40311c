// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/VitalsArithmetic.h"

namespace zelk {

/// A folder of /sys/class/power_supply: its files, each absent if it is missing or cannot be read.
struct PowerSupply {
    std::optional<std::string> type;    ///< "Battery", "Mains", "USB", "UPS", "Wireless"
    std::optional<std::string> scope;   ///< "Device" for what powers a mouse and not the machine
    std::optional<std::string> status;  ///< of a battery: "Charging", "Discharging", "Full", "Not charging", "Unknown"
    std::optional<std::int64_t> present;
    std::optional<std::int64_t> online;
    std::optional<std::int64_t> capacity;  ///< percent
    std::optional<std::int64_t> chargeNow, chargeFull, energyNow, energyFull;
};

/// The machine's battery, the first of `supplies`; absent if it has none. It is on the mains if any other supply of the
/// machine is online; where no other is known, if the battery says that it is not being drained.
std::optional<BatteryFields> machineBattery(const std::vector<PowerSupply>& supplies);

}  // namespace zelk
