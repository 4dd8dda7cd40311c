// SPDX-License-Identifier: MIT
#include "platform/ByteFormat.h"

#include <array>

namespace zelk {

namespace {

struct Unit {
    std::string_view name;
    std::int64_t bytes;
    std::int64_t steps;  ///< steps per unit: 1, 10 or 100, for 0, 1 or 2 decimals
};

constexpr std::int64_t thousand = 1000;
constexpr std::int64_t million = 1000 * thousand;
constexpr std::int64_t billion = 1000 * million;

/// A signed 64-bit count reaches exabytes at most.
constexpr std::array units{
    Unit{"KB", thousand, 1},           Unit{"MB", million, 10},
    Unit{"GB", billion, 100},          Unit{"TB", thousand* billion, 100},
    Unit{"PB", million* billion, 100}, Unit{"EB", billion* billion, 100},
};

/// `count` rounded to the nearest step of the unit.
std::int64_t stepsOf(std::int64_t count, const Unit& unit) {
    const std::int64_t step = unit.bytes / unit.steps;  // even for every unit, so half a step is a whole number
    return count / step + (count % step >= step / 2 ? 1 : 0);
}

std::string fraction(std::int64_t parts, std::int64_t steps, std::string_view decimalSeparator) {
    if (parts == 0) return {};
    std::string digits;
    for (std::int64_t place = steps / 10; place > 0 && parts > 0; place /= 10) {
        digits += static_cast<char>('0' + parts / place);
        parts %= place;
    }
    return std::string(decimalSeparator) + digits;
}

}  // namespace

std::string byteText(std::int64_t count, std::string_view decimalSeparator) {
    if (count < 0) count = 0;
    if (count == 1) return "1 byte";
    if (count < thousand) return std::to_string(count) + " bytes";

    // Take the first unit in which the rounded figure stays below 1000: round before choosing the unit.
    const Unit* unit = units.data();
    std::int64_t steps = stepsOf(count, *unit);
    while (steps >= 1000 * unit->steps && unit != &units.back()) steps = stepsOf(count, *++unit);

    return std::to_string(steps / unit->steps) + fraction(steps % unit->steps, unit->steps, decimalSeparator) + " " +
           std::string(unit->name);
}

std::string memoryText(std::uint64_t bytes) {
    return std::to_string((bytes >> 30) + ((bytes >> 29) & 1)) + " GB";
}

}  // namespace zelk
