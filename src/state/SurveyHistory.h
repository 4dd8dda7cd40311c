// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileManager.h"
#include "platform/Locations.h"
#include "state/SurveyRecord.h"

namespace zelk {

/// The JSON of "history.json": an array of records, oldest first, in the format of the default JSON encoder on macOS.
/// Absent unless every record has every required key with the right type.
std::optional<std::vector<SurveyRecord>> decodeHistory(std::string_view json);
std::string encodeHistory(const std::vector<SurveyRecord>& records);

/// The last surveys, in one small file. The file is the source of truth: every append reads it again. Failures are
/// silent: an unreadable file is an empty history. Safe from any thread.
class SurveyHistory {
public:
    static constexpr std::size_t maximumRecords = 60;

    SurveyHistory(FileManager& files, Locations& locations) : files_(files), locations_(locations) {}

    /// "Zelk/history.json" in the application support folder; absent if the system has none. Creates the folder, but
    /// never a missing home folder.
    std::optional<std::string> location() const;
    /// Creates nothing.
    std::vector<SurveyRecord> load() const;
    /// Appends `record`, drops the oldest ones above the maximum, writes, and returns the whole list whether or not the
    /// write succeeded.
    std::vector<SurveyRecord> appendHistory(const SurveyRecord& record);
    /// Appends a record that may become unwanted before, during or after the write. If `stillWanted` is false before
    /// the write, nothing is written or returned; if it is false later, the next settle() or append removes the record
    /// again. `stillWanted` must not lock.
    std::optional<std::vector<SurveyRecord>> appendHistoryIf(std::function<bool()> stillWanted,
                                                             const SurveyRecord& record);
    /// If the last record is no longer wanted, removes it from the file and restores the records that it displaced.
    void settle();

private:
    /// The folder of the file, whether or not it is there.
    std::optional<std::string> folder() const;

    struct Last {
        std::function<bool()> stillWanted;
        SurveyRecord record;
        std::vector<SurveyRecord> dropped;  ///< the oldest ones, which it displaced
    };

    /// Removes the last record from the list, not from the file, if it is no longer wanted. True if it was there.
    bool withdrawUnwanted(std::vector<SurveyRecord>& records) const;

    FileManager& files_;
    Locations& locations_;
    std::mutex writing_;        // held while the file is read and written
    std::optional<Last> last_;  // the last one written; kept after settle(), since its write may fail
};

}  // namespace zelk
