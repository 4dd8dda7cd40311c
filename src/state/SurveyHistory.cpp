// SPDX-License-Identifier: MIT
#include "state/SurveyHistory.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

#include "platform/FolderPath.h"
#include "state/HistoryKey.h"

namespace zelk {
namespace {

using Json = nlohmann::json;

/// 2001-01-01 00:00:00 UTC, from which the file counts its seconds.
constexpr TimePoint fileEpoch = 978307200;
constexpr std::string_view historyName = "history.json";

/// The number that the file holds for `date`. Subtraction rounds dates far from the present, so this takes the
/// neighbour that reads back as `date`. A date that is not finite would make the whole file invalid and is written as
/// 0.
double fileSeconds(TimePoint date) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (!std::isfinite(date)) return 0;
    const double near = date - fileEpoch;
    for (const double candidate : {near, std::nextafter(near, -infinity), std::nextafter(near, infinity)}) {
        if (candidate + fileEpoch == date) return candidate;
    }
    return near;
}

/// Turns "5.0" into "5" outside strings. Other writers give integers a fraction, and read as a floating-point number a
/// size above 2^53 would lose its last digits.
std::string withoutEmptyFractions(std::string_view json) {
    std::string out;
    out.reserve(json.size());
    bool inString = false;
    for (std::size_t at = 0; at < json.size(); ++at) {
        const char c = json[at];
        if (c == '"') inString = !inString;
        if (c == '.' && !inString) {
            const std::size_t end = std::min(json.find_first_not_of("0123456789.eE+-", at), json.size());
            const std::string_view fraction = json.substr(at, end - at);
            const bool empty = fraction.size() > 1 && fraction.find_first_not_of('0', 1) == std::string_view::npos;
            if (!empty) out += fraction;
            at = end - 1;
            continue;
        }
        out += c;
        if (c == '\\' && inString && at + 1 < json.size()) out += json[++at];
    }
    return out;
}

/// The member of an object; nullptr if there is none.
const Json* member(const Json& object, const char* key) {
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

/// A whole number that 64 bits hold, however it is written.
std::optional<std::int64_t> integer(const Json& value) {
    constexpr double range = 9223372036854775808.0;  // 2^63
    if (const auto* number = value.get_ptr<const std::uint64_t*>())
        return std::in_range<std::int64_t>(*number) ? std::optional(static_cast<std::int64_t>(*number)) : std::nullopt;
    if (const auto* number = value.get_ptr<const std::int64_t*>()) return *number;
    const auto* number = value.get_ptr<const double*>();
    if (number == nullptr || !(*number >= -range && *number < range) || *number != std::trunc(*number))
        return std::nullopt;
    return static_cast<std::int64_t>(*number);
}

/// Copies `object[key]`; false if it is missing or not an integer.
bool take(std::int64_t& field, const Json& object, const char* key) {
    const Json* const found = member(object, key);
    const std::optional<std::int64_t> value = found == nullptr ? std::nullopt : integer(*found);
    field = value.value_or(0);
    return value.has_value();
}

std::optional<SizeByPath> sizes(const Json& value) {
    if (!value.is_object()) return std::nullopt;
    SizeByPath map;
    for (const auto& [key, entry] : value.items()) {
        const std::optional<std::int64_t> size = integer(entry);
        if (!size) return std::nullopt;
        map.emplace(pathOfHistoryKey(key), *size);
    }
    return map;
}

Json objectOf(const SizeByPath& map) {
    Json object = Json::object();
    for (const auto& [key, size] : map) object[historyKey(key)] = size;
    return object;
}

std::optional<SurveyRecord> decodeRecord(const Json& object) {
    if (!object.is_object()) return std::nullopt;
    SurveyRecord record;
    const Json* const date = member(object, "date");
    if (date == nullptr || !date->is_number()) return std::nullopt;
    record.date = date->get<double>() + fileEpoch;
    if (!take(record.totalScanned, object, "totalScanned") || !take(record.used, object, "used") ||
        !take(record.free, object, "free") || !take(record.reclaimable, object, "reclaimable")) {
        return std::nullopt;
    }
    const Json* const types = member(object, "types");
    std::optional<SizeByPath> sizeByType = types == nullptr ? std::nullopt : sizes(*types);
    if (!sizeByType) return std::nullopt;
    record.types = std::move(*sizeByType);
    const Json* const folders = member(object, "folders");
    if (folders != nullptr && !folders->is_null()) {
        record.folders = sizes(*folders);
        if (!record.folders) return std::nullopt;
    }
    return record;
}

Json encodeRecord(const SurveyRecord& record) {
    Json object{
        {"date", fileSeconds(record.date)},
        {"totalScanned", record.totalScanned},
        {"used", record.used},
        {"free", record.free},
        {"reclaimable", record.reclaimable},
        {"types", objectOf(record.types)},
    };
    if (record.folders) object["folders"] = objectOf(*record.folders);
    return object;
}

}  // namespace

std::optional<std::vector<SurveyRecord>> decodeHistory(std::string_view json) {
    const Json document = Json::parse(withoutEmptyFractions(json), nullptr, false);
    if (!document.is_array()) return std::nullopt;
    std::vector<SurveyRecord> records;
    for (const Json& value : document) {
        std::optional<SurveyRecord> record = decodeRecord(value);
        if (!record) return std::nullopt;
        records.push_back(std::move(*record));
    }
    return records;
}

std::string encodeHistory(const std::vector<SurveyRecord>& records) {
    Json array = Json::array();
    for (const SurveyRecord& record : records) array.push_back(encodeRecord(record));
    return array.dump();
}

std::optional<std::string> SurveyHistory::folder() const {
    const std::optional<std::string> support = locations_.applicationSupport();
    if (!support) return std::nullopt;
    return *support + "/Zelk";
}

std::optional<std::string> SurveyHistory::location() const {
    const std::optional<std::string> place = folder();
    if (!place) return std::nullopt;
    // Without the folder, writing simply fails. Never creates the home folder: it may be on a volume that is mounted
    // later.
    const std::string home = locations_.home();
    if (!isInFolder(*place, home) || files_.exists(home)) files_.createDirectories(*place);
    return pathIn(*place, historyName);
}

std::vector<SurveyRecord> SurveyHistory::load() const {
    const std::optional<std::string> place = folder();
    const std::optional<std::string> json = place ? files_.read(pathIn(*place, historyName)) : std::nullopt;
    return json ? decodeHistory(*json).value_or(std::vector<SurveyRecord>()) : std::vector<SurveyRecord>();
}

std::vector<SurveyRecord> SurveyHistory::appendHistory(const SurveyRecord& record) {
    return *appendHistoryIf([] { return true; }, record);
}

std::optional<std::vector<SurveyRecord>> SurveyHistory::appendHistoryIf(std::function<bool()> stillWanted,
                                                                        const SurveyRecord& record) {
    const std::lock_guard lock(writing_);
    std::vector<SurveyRecord> records = load();
    withdrawUnwanted(records);
    records.push_back(record);
    const std::size_t excess = records.size() - std::min(records.size(), maximumRecords);
    const auto kept = records.begin() + static_cast<std::ptrdiff_t>(excess);
    Last last{std::move(stillWanted), record, {records.begin(), kept}};
    records.erase(records.begin(), kept);
    const std::string json = encodeHistory(records);
    const std::optional<std::string> path = location();
    if (!last.stillWanted()) return std::nullopt;
    // If the write fails, the last record of the file is still the one before.
    if (path && files_.replaceDurably(*path, json)) last_ = std::move(last);
    return records;
}

void SurveyHistory::settle() {
    const std::lock_guard lock(writing_);
    std::vector<SurveyRecord> records = load();
    const std::optional<std::string> path = location();
    if (withdrawUnwanted(records) && path) files_.replaceDurably(*path, encodeHistory(records));
}

bool SurveyHistory::withdrawUnwanted(std::vector<SurveyRecord>& records) const {
    if (!last_ || last_->stillWanted()) return false;
    const auto found = std::find(records.rbegin(), records.rend(), last_->record);
    if (found == records.rend()) return false;
    records.erase(std::next(found).base());
    records.insert(records.begin(), last_->dropped.begin(), last_->dropped.end());
    return true;
}

}  // namespace zelk
