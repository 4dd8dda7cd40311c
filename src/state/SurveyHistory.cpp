// SPDX-License-Identifier: MIT
#include "state/SurveyHistory.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include "platform/FolderPath.h"
#include "state/HistoryKey.h"

namespace zelk {
namespace {

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
QByteArray withoutEmptyFractions(std::string_view json) {
    QByteArray out;
    out.reserve(static_cast<qsizetype>(json.size()));
    bool inString = false;
    for (std::size_t at = 0; at < json.size(); ++at) {
        const char c = json[at];
        if (c == '"') inString = !inString;
        if (c == '.' && !inString) {
            const std::size_t end = std::min(json.find_first_not_of("0123456789.eE+-", at), json.size());
            const std::string_view fraction = json.substr(at, end - at);
            const bool empty = fraction.size() > 1 && fraction.find_first_not_of('0', 1) == std::string_view::npos;
            if (!empty) out.append(fraction.data(), static_cast<qsizetype>(fraction.size()));
            at = end - 1;
            continue;
        }
        out += c;
        if (c == '\\' && inString && at + 1 < json.size()) out += json[++at];
    }
    return out;
}

std::optional<std::int64_t> integer(const QJsonValue& value) {
    // Anything but a 64-bit integer gives the default: two different defaults tell it from a number.
    const qint64 read = value.toInteger(0);
    if (!value.isDouble() || read != value.toInteger(1)) return std::nullopt;
    return read;
}

/// Copies `object[key]`; false if it is missing or not an integer.
bool take(std::int64_t& field, const QJsonObject& object, QLatin1StringView key) {
    const std::optional<std::int64_t> value = integer(object.value(key));
    field = value.value_or(0);
    return value.has_value();
}

std::optional<SizeByPath> sizes(const QJsonValue& value) {
    if (!value.isObject()) return std::nullopt;
    const QJsonObject object = value.toObject();
    SizeByPath map;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const std::optional<std::int64_t> size = integer(entry.value());
        if (!size) return std::nullopt;
        map.emplace(pathOfHistoryKey(entry.key()), *size);
    }
    return map;
}

QJsonObject objectOf(const SizeByPath& map) {
    QJsonObject object;
    for (const auto& [key, size] : map) object.insert(historyKey(key), QJsonValue(qint64{size}));
    return object;
}

std::optional<SurveyRecord> decodeRecord(const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    SurveyRecord record;
    const QJsonValue date = object.value(QLatin1StringView("date"));
    if (!date.isDouble()) return std::nullopt;
    record.date = date.toDouble() + fileEpoch;
    if (!take(record.totalScanned, object, QLatin1StringView("totalScanned")) ||
        !take(record.used, object, QLatin1StringView("used")) ||
        !take(record.free, object, QLatin1StringView("free")) ||
        !take(record.reclaimable, object, QLatin1StringView("reclaimable"))) {
        return std::nullopt;
    }
    std::optional<SizeByPath> types = sizes(object.value(QLatin1StringView("types")));
    if (!types) return std::nullopt;
    record.types = std::move(*types);
    const QJsonValue folders = object.value(QLatin1StringView("folders"));
    if (!folders.isUndefined() && !folders.isNull()) {
        record.folders = sizes(folders);
        if (!record.folders) return std::nullopt;
    }
    return record;
}

QJsonObject encodeRecord(const SurveyRecord& record) {
    QJsonObject object{
        {"date", fileSeconds(record.date)},
        {"totalScanned", qint64{record.totalScanned}},
        {"used", qint64{record.used}},
        {"free", qint64{record.free}},
        {"reclaimable", qint64{record.reclaimable}},
        {"types", objectOf(record.types)},
    };
    if (record.folders) object.insert("folders", objectOf(*record.folders));
    return object;
}

}  // namespace

std::optional<std::vector<SurveyRecord>> decodeHistory(std::string_view json) {
    const QJsonDocument document = QJsonDocument::fromJson(withoutEmptyFractions(json));
    if (!document.isArray()) return std::nullopt;
    std::vector<SurveyRecord> records;
    for (const QJsonValue& value : document.array()) {
        std::optional<SurveyRecord> record = decodeRecord(value);
        if (!record) return std::nullopt;
        records.push_back(std::move(*record));
    }
    return records;
}

std::string encodeHistory(const std::vector<SurveyRecord>& records) {
    QJsonArray array;
    for (const SurveyRecord& record : records) array.append(encodeRecord(record));
    return QJsonDocument(array).toJson(QJsonDocument::Compact).toStdString();
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
