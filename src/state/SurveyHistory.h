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

/// The JSON of "history.json": an array of records, oldest first, as the default encoder of the Mac's language writes
/// them and reads them. Absent unless every record has every required key with its type.
std::optional<std::vector<SurveyRecord>> decodeHistory(std::string_view json);
std::string encodeHistory(const std::vector<SurveyRecord>& records);

/// The last surveys, kept in one small file. The file is the source of truth: every append reads it afresh. All its
/// failures are silent: an unreadable file is an empty history. Safe from any thread.
class SurveyHistory {
public:
    static constexpr std::size_t maximumRecords = 60;

    SurveyHistory(FileManager& files, Locations& locations) : files_(files), locations_(locations) {}

    /// "Zelk/history.json" in the application support folder, the folder made, but never the home folder; absent if the
    /// system names none.
    std::optional<std::string> location() const;
    std::vector<SurveyRecord> load() const;
    /// Adds `record`, drops the oldest above the maximum, writes, and gives the whole list whether or not the write
    /// succeeded.
    std::vector<SurveyRecord> append(const SurveyRecord& record);
    /// The same for a record that may turn out to be unwanted, before, during or after the write: then nothing is
    /// written nor given, or the next settle() or append takes it out again. `stillWanted` must not lock.
    std::optional<std::vector<SurveyRecord>> appendIf(std::function<bool()> stillWanted, const SurveyRecord& record);
    /// Takes the last record out of the file, and puts back what made room for it, if it is not wanted any more.
    void settle();

private:
    struct Last {
        std::function<bool()> stillWanted;
        SurveyRecord record;
        std::vector<SurveyRecord> dropped;  ///< the oldest, which made room for it
    };

    /// Takes the last record out of the list if it is not wanted any more; true if it was in it. The file still has it.
    bool withdrawUnwanted(std::vector<SurveyRecord>& records) const;

    FileManager& files_;
    Locations& locations_;
    std::mutex writing_;        // held from the reading of the file to the end of its writing
    std::optional<Last> last_;  // the last one written; looked for again at every turn, since a write may fail
};

}  // namespace zelk
