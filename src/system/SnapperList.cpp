// SPDX-License-Identifier: MIT
#include "system/SnapperList.h"

#include <chrono>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>

#include "platform/Text.h"
#include "platform/Utf8.h"

namespace zelk {

namespace {

using Json = nlohmann::json;

/// Discarded if `text` is not JSON. A description in another encoding must not hide every snapshot, so its bytes become
/// question marks.
Json parsed(std::string_view text) {
    std::string readable(text);
    if (!isUtf8(text))
        for (char& c : readable)
            if (static_cast<unsigned char>(c) >= 0x80) c = '?';
    return Json::parse(readable, nullptr, false);
}

/// The member of an object; nullptr if there is none, or if `value` is no object.
const Json* member(const Json& value, std::string_view key) {
    if (!value.is_object()) return nullptr;
    const auto found = value.find(std::string(key));
    return found == value.end() ? nullptr : &*found;
}

const std::string* textIn(const Json& value, std::string_view key) {
    const Json* found = member(value, key);
    return found == nullptr ? nullptr : found->get_ptr<const std::string*>();
}

bool isFalse(const Json& value, std::string_view key) {
    const Json* found = member(value, key);
    const auto* flag = found == nullptr ? nullptr : found->get_ptr<const bool*>();
    return flag != nullptr && !*flag;
}

/// Whether the user's data says nothing against removing the snapshot.
bool isUnimportant(const Json& entry) {
    const Json* userdata = member(entry, "userdata");
    if (userdata == nullptr) return false;
    if (userdata->is_null()) return true;
    if (!userdata->is_object()) return false;
    if (member(*userdata, "important") == nullptr) return true;
    const std::string* important = textIn(*userdata, "important");
    return important != nullptr && *important != "yes";
}

/// A time as "2026-11-22 00:09:10" in UTC.
std::optional<TimePoint> utcTime(std::string_view text) {
    constexpr std::string_view shape = "0000-00-00 00:00:00";
    if (text.size() != shape.size()) return std::nullopt;
    for (std::size_t at = 0; at < shape.size(); ++at)
        if (shape[at] == '0' ? text[at] < '0' || text[at] > '9' : text[at] != shape[at]) return std::nullopt;
    const auto number = [text](std::size_t at, std::size_t digits) {
        return parseNumber<unsigned>(text.substr(at, digits)).value_or(0);
    };
    const std::chrono::year_month_day date(std::chrono::year(static_cast<int>(number(0, 4))),
                                           std::chrono::month(number(5, 2)), std::chrono::day(number(8, 2)));
    const unsigned hour = number(11, 2);
    const unsigned minute = number(14, 2);
    const unsigned second = number(17, 2);
    if (!date.ok() || hour > 23 || minute > 59 || second > 59) return std::nullopt;
    const auto days = std::chrono::sys_days(date).time_since_epoch().count();
    return static_cast<TimePoint>(days) * secondsPerDay + hour * 3600.0 + minute * 60.0 + second;
}

std::optional<LocalSnapshot> snapshotIn(const Json& entry, const std::string& config) {
    const Json* number = member(entry, "number");
    const std::string* type = textIn(entry, "type");
    if (number == nullptr || !number->is_number_unsigned() || type == nullptr) return std::nullopt;
    const auto value = number->get<std::uint64_t>();
    if (value == 0 || value > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;

    const std::string* description = textIn(entry, "description");
    const std::string* cleanup = textIn(entry, "cleanup");
    const std::string* date = textIn(entry, "date");
    LocalSnapshot snapshot;
    snapshot.uuid = config + "/" + std::to_string(value);
    snapshot.name = description == nullptr || description->empty() ? *type + " " + std::to_string(value) : *description;
    if (date != nullptr) snapshot.date = utcTime(*date);
    snapshot.isOSUpdate = *type == "pre" || *type == "post";
    snapshot.purgeable = cleanup != nullptr && !cleanup->empty() && isFalse(entry, "default") &&
                         isFalse(entry, "active") && isUnimportant(entry);
    return snapshot;
}

}  // namespace

std::optional<std::string> snapperConfig(std::string_view json, std::string_view mountPoint) {
    const Json all = parsed(json);
    const Json* configs = member(all, "configs");
    if (configs == nullptr || !configs->is_array()) return std::nullopt;
    for (const Json& one : *configs) {
        const std::string* name = textIn(one, "config");
        const std::string* subvolume = textIn(one, "subvolume");
        if (name != nullptr && subvolume != nullptr && *subvolume == mountPoint) return *name;
    }
    return std::nullopt;
}

std::optional<std::vector<LocalSnapshot>> parseSnapperList(std::string_view json, const std::string& config) {
    const Json all = parsed(json);
    const Json* entries = member(all, config);
    if (entries == nullptr || !entries->is_array()) return std::nullopt;
    std::vector<LocalSnapshot> snapshots;
    for (const Json& entry : *entries)
        if (std::optional<LocalSnapshot> snapshot = snapshotIn(entry, config))
            snapshots.push_back(*std::move(snapshot));
    return snapshots;
}

}  // namespace zelk
