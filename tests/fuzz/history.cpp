// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as a history file: encoding the result and decoding it again changes nothing, and the sums
// over it terminate. Paths, sizes and dates made from the same bytes keep their values too.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/Utf8.h"
#include "state/HistoryKey.h"
#include "state/SurveyHistory.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void checkPath(const std::string& path) {
    const std::string key = zelk::historyKey(path);
    require(zelk::pathOfHistoryKey(key) == path);
    require(zelk::isUtf8(key));
}

void checkRecord(std::string_view bytes, const std::string& path) {
    zelk::SurveyRecord record;
    std::memcpy(&record.used, bytes.data(), sizeof record.used);
    std::memcpy(&record.date, bytes.data(), sizeof record.date);
    record.folders = zelk::SizeByPath{{path, record.used}, {"/", 1}};
    const auto read = zelk::decodeHistory(zelk::encodeHistory({record}));
    require(read && read->size() == 1);
    require(read->front().used == record.used && read->front().folders == record.folders);
    require(std::isfinite(read->front().date));
    require(!std::isfinite(record.date) ||
            std::abs(read->front().date - record.date) <= 1e-6 + std::abs(record.date) * 1e-15);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    checkPath(bytes);
    if (size >= sizeof(double)) checkRecord(bytes, bytes.substr(sizeof(double)));

    const auto records = zelk::decodeHistory(bytes);
    if (!records) return 0;
    const std::string written = zelk::encodeHistory(*records);
    require(zelk::decodeHistory(written) == records);
    static_cast<void>(zelk::daysUntilFull(*records));
    if (const auto changes = zelk::folderChanges(*records)) {
        for (const zelk::FolderChange& change : changes->grew) require(change.newSize > change.oldSize);
    }
    return 0;
}
