// SPDX-License-Identifier: MIT
#include "system/LocalSnapshot.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>

#include "platform/Text.h"

namespace zelk {

namespace {

// In both patterns a "0" stands for a digit, an "x" for a hexadecimal one.
constexpr std::string_view stampPattern = "0000-00-00-000000";
constexpr std::string_view identifierPattern = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

// What diskutil draws its tree with.
constexpr std::string_view treeMarks = "|+- \t";
constexpr std::string_view nameLabel = "Name:";
constexpr std::string_view purgeableLabel = "Purgeable:";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isHexadecimal(char c) {
    return isDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

bool fits(std::string_view text, std::string_view pattern) {
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), [](char c, char wanted) {
        if (wanted == '0') return isDigit(c);
        return wanted == 'x' ? isHexadecimal(c) : c == wanted;
    });
}

std::string_view strippedOf(std::string_view characters, std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(characters) + 1));
    return text;
}

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

/// What a name line says, without any of its labels.
std::string nameIn(std::string_view line) {
    std::string name;
    for (std::size_t at = line.find(nameLabel); at != std::string_view::npos; at = line.find(nameLabel)) {
        name += line.substr(0, at);
        line.remove_prefix(at + nameLabel.size());
    }
    name += line;
    return std::string(strippedOf(" \t", name));
}

/// The first date stamp; empty if there is none.
std::string_view findStamp(std::string_view name) {
    for (std::size_t at = 0; at + stampPattern.size() <= name.size(); ++at)
        if (const std::string_view part = name.substr(at, stampPattern.size()); fits(part, stampPattern)) return part;
    return {};
}

int daysIn(int month, int year) {
    constexpr std::array days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return days[static_cast<std::size_t>(month - 1)] + (month == 2 && leap ? 1 : 0);
}

/// The fields of a stamp; absent if no calendar or clock shows them.
std::optional<std::tm> readStamp(std::string_view stamp) {
    const auto number = [stamp](std::size_t at, std::size_t digits) {
        return parseNumber<int>(stamp.substr(at, digits)).value_or(0);
    };
    const int year = number(0, 4);
    const int month = number(5, 2);
    const int day = number(8, 2);
    std::tm time{};
    time.tm_hour = number(11, 2);
    time.tm_min = number(13, 2);
    time.tm_sec = number(15, 2);
    if (year < 1 || month < 1 || month > 12 || day < 1 || day > daysIn(month, year)) return std::nullopt;
    if (time.tm_hour > 23 || time.tm_min > 59 || time.tm_sec > 59) return std::nullopt;
    time.tm_year = year - 1900;
    time.tm_mon = month - 1;
    time.tm_mday = day;
    return time;
}

/// The point in time of local fields, which are replaced by those that this time has. `dst` is that of mktime().
std::optional<std::time_t> makeTime(std::tm& fields, int dst) {
    fields.tm_isdst = dst;
    fields.tm_wday = -1;
    const std::time_t time = std::mktime(&fields);
    // -1 is also a point in time; only success sets the day of the week.
    if (fields.tm_wday < 0) return std::nullopt;
    return time;
}

bool sameFields(const std::tm& one, const std::tm& other) {
    return one.tm_year == other.tm_year && one.tm_mon == other.tm_mon && one.tm_mday == other.tm_mday &&
           one.tm_hour == other.tm_hour && one.tm_min == other.tm_min && one.tm_sec == other.tm_sec;
}

/// Adds to the hash of a record that of its next field.
void addHash(std::size_t& all, std::size_t one) {
    all ^= one + 0x9e3779b9U + (all << 6U) + (all >> 2U);
}

}  // namespace

std::vector<LocalSnapshot> parseSnapshotListing(std::string_view text) {
    std::vector<LocalSnapshot> snapshots;
    LocalSnapshot current;
    const auto finish = [&] {
        if (current.name.empty()) return;
        current.date = dateOfName(current.name);
        current.isOSUpdate = contains(current.name, "os.update") || contains(current.name, "os-update");
        // The flag counts for this entry alone. Without a name no entry ends, and the flag stays for the next one.
        snapshots.push_back(std::exchange(current, {}));
    };
    while (!text.empty()) {
        const std::string_view line = strippedOf(treeMarks, takeLine(text));
        if (fits(line, identifierPattern)) {
            finish();
            current.uuid = line;
        } else if (line.starts_with(nameLabel)) {
            current.name = nameIn(line);
        } else if (line.starts_with(purgeableLabel)) {
            current.purgeable = contains(line, "Yes");
        }
    }
    finish();
    return snapshots;
}

std::string_view dateStamp(std::string_view name) {
    const std::string_view stamp = findStamp(name);
    return stamp.empty() ? name : stamp;
}

std::optional<TimePoint> dateOfName(std::string_view name) {
    const std::string_view stamp = findStamp(name);
    const std::optional<std::tm> wanted = stamp.empty() ? std::nullopt : readStamp(stamp);
    if (!wanted) return std::nullopt;
    // Left to decide by itself, mktime() takes a repeated time for what it took the last one for.
    std::optional<std::time_t> earliest;
    std::optional<std::time_t> skipped;
    for (const int dst : {1, 0, -1}) {
        std::tm fields = *wanted;
        const std::optional<std::time_t> time = makeTime(fields, dst);
        if (!time) continue;
        if (sameFields(fields, *wanted))
            earliest = std::min(earliest.value_or(*time), *time);
        else if (dst != 1 && !skipped)
            skipped = time;
    }
    const std::optional<std::time_t> found = earliest ? earliest : skipped;
    if (!found) return std::nullopt;
    return static_cast<TimePoint>(*found);
}

}  // namespace zelk

std::size_t std::hash<zelk::LocalSnapshot>::operator()(const zelk::LocalSnapshot& snapshot) const noexcept {
    std::size_t all = std::hash<std::string>()(snapshot.name);
    zelk::addHash(all, std::hash<std::optional<zelk::TimePoint>>()(snapshot.date));
    zelk::addHash(all, std::hash<bool>()(snapshot.isOSUpdate));
    zelk::addHash(all, std::hash<bool>()(snapshot.purgeable));
    zelk::addHash(all, std::hash<std::string>()(snapshot.uuid));
    return all;
}
