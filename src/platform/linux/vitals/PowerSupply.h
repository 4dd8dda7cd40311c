// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/VitalsArithmetic.h"

namespace zelk {

/// The files of a folder in /sys/class/power_supply, each absent if missing or unreadable.
struct PowerSupply {
    std::optional<std::string> type;    ///< "Battery", "Mains", "USB", "UPS", "Wireless"
    std::optional<std::string> scope;   ///< "Device" for a peripheral's supply, such as a mouse's
    std::optional<std::string> status;  ///< battery state: "Charging", "Discharging", "Full", "Not charging", "Unknown"
    std::optional<std::int64_t> present;
    std::optional<std::int64_t> online;
    std::optional<std::int64_t> capacity;  ///< percent
    std::optional<std::int64_t> chargeNow, chargeFull, energyNow, energyFull;
};

/// The first battery of the machine among `supplies`; absent if there is none. It is on AC if any other supply is
/// online, or, without other supplies, if it is not discharging.
std::optional<BatteryFields> machineBattery(const std::vector<PowerSupply>& supplies);

}  // namespace zelk
