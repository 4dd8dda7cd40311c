// SPDX-License-Identifier: MIT
#include "platform/linux/vitals/PowerSupply.h"

#include <algorithm>

namespace zelk {

namespace {

bool powersTheMachine(const PowerSupply& supply) {
    return supply.type && supply.scope != "Device";
}

bool isBattery(const PowerSupply& supply) {
    return powersTheMachine(supply) && supply.type == "Battery" && supply.present.value_or(1) != 0;
}

/// A UPS also powers the machine without mains, so it says nothing about them.
bool isLine(const PowerSupply& supply) {
    return powersTheMachine(supply) && supply.type != "Battery" && supply.type != "UPS" && supply.online;
}

std::optional<std::string> stateOf(const PowerSupply& battery, const std::vector<PowerSupply>& supplies) {
    const auto onLine = [](const PowerSupply& supply) { return isLine(supply) && *supply.online != 0; };
    if (std::any_of(supplies.begin(), supplies.end(), onLine)) return "AC Power";
    if (std::any_of(supplies.begin(), supplies.end(), isLine)) return "Battery Power";
    if (battery.status == "Discharging") return "Battery Power";
    if (battery.status == "Charging" || battery.status == "Full" || battery.status == "Not charging") return "AC Power";
    return std::nullopt;
}

}  // namespace

std::optional<BatteryFields> machineBattery(const std::vector<PowerSupply>& supplies) {
    const auto battery = std::find_if(supplies.begin(), supplies.end(), isBattery);
    if (battery == supplies.end()) return std::nullopt;

    BatteryFields fields;
    if (battery->capacity) {
        fields.currentCapacity = battery->capacity;  // in percent
    } else if (battery->energyNow && battery->energyFull) {
        fields.currentCapacity = battery->energyNow;
        fields.maxCapacity = battery->energyFull;
    } else if (battery->chargeNow && battery->chargeFull) {
        fields.currentCapacity = battery->chargeNow;
        fields.maxCapacity = battery->chargeFull;
    }
    fields.powerSourceState = stateOf(*battery, supplies);
    if (battery->status) fields.isCharging = battery->status == "Charging";
    return fields;
}

}  // namespace zelk
