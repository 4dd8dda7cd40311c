// SPDX-License-Identifier: MIT
#include "cli/TableReport.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <ctime>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/Figures.h"
#include "cli/VisibleText.h"
#include "platform/ByteFormat.h"
#include "reclaim/ReclaimTotals.h"

namespace zelk::cli {

namespace {

// The widest that occur: "999 bytes" and "123.46 GB", a sign before it, "1,234,567" files, "regenerates".
constexpr std::size_t sizeColumns = 9;
constexpr std::size_t changeColumns = sizeColumns + 1;
constexpr std::size_t countColumns = 11;
constexpr std::size_t safetyColumns = 11;

std::string right(std::string text, std::size_t columns) {
    return text.insert(0, columns - std::min(text.size(), columns), ' ');
}

std::string left(std::string text, std::size_t columns) {
    return text.append(columns - std::min(text.size(), columns), ' ');
}

std::string sizeColumn(std::int64_t bytes) {
    return "  " + right(byteText(bytes), sizeColumns);
}

/// "  41 %": whole percent of the total.
std::string shareColumn(std::int64_t bytes, std::int64_t total) {
    const double share = total > 0 ? 100.0 * static_cast<double>(bytes) / static_cast<double>(total) : 0;
    return "  " + right(std::to_string(std::lround(share)), 3) + " %";
}

std::string_view nameOf(FileType type) {
    switch (type) {
        case FileType::video:
            return "Videos";
        case FileType::audio:
            return "Audio";
        case FileType::image:
            return "Images";
        case FileType::archive:
            return "Archives";
        case FileType::diskImage:
            return "Disk images";
        case FileType::document:
            return "Documents";
        case FileType::other:
            break;
    }
    return "Other";
}

/// The history may hold any number.
std::string dateText(TimePoint date) {
    constexpr double longest = 1e15;  // seconds; far more has no year
    if (!(std::abs(date) < longest)) return "an unknown date";
    const auto seconds = static_cast<std::time_t>(std::floor(date));
    std::tm local{};
    std::array<char, 64> text{};
    if (::localtime_r(&seconds, &local) == nullptr) return {};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &local)};
}

struct Row {
    std::string name;  ///< visible text
    std::int64_t bytes = 0;
};

class Table {
public:
    Table(Output& output, const Survey& survey, std::uint64_t top) : output_(output), survey_(survey), top_(top) {}

    void write() {
        const ScanStats& stats = survey_.stats;
        line(byteText(stats.totalBytes) + " in " + counted(stats.filesScanned, "file") + " and " +
             counted(stats.dirsScanned, "folder"));
        writeFolders();
        writeTypes();
        writeFiles();
        writeReclaimables();
        writeGrowth();
        if (stats.blockedPaths == 0) return;
        line("");
        line(counted(stats.blockedPaths, "folder") + " could not be read.");
    }

private:
    void line(const std::string& text) { output_.write(text + "\n"); }

    void title(const std::string& text) {
        line("");
        line(text);
    }

    std::size_t shownOf(std::size_t rows) const {
        return static_cast<std::size_t>(std::min<std::uint64_t>(top_, rows));
    }

    void writeFolders() {
        const FSNode* const root = survey_.tree->onlyChild();
        const FSNode& level = root ? *root : *survey_.tree;
        std::vector<Row> rows;
        for (const FSNode& folder : level.children()) rows.push_back({visibleText(folder.name()), folder.size});
        if (level.fileCount > 0) rows.push_back({looseFiles(level.fileCount), level.ownFileBytes});
        if (rows.empty() || top_ == 0) return;
        std::sort(rows.begin(), rows.end(),
                  [](const Row& a, const Row& b) { return a.bytes != b.bytes ? a.bytes > b.bytes : a.name < b.name; });

        title(root ? "In " + visibleText(level.name()) : "Folders");
        const std::size_t shown = shownOf(rows.size());
        std::int64_t rest = 0;
        for (std::size_t at = 0; at < rows.size(); ++at) {
            if (at >= shown)
                rest += rows[at].bytes;
            else
                folderLine(rows[at].bytes, rows[at].name);
        }
        if (rows.size() > shown)
            folderLine(rest, "(" + grouped(static_cast<std::int64_t>(rows.size() - shown)) + " more)");
    }

    void folderLine(std::int64_t bytes, const std::string& name) {
        line(sizeColumn(bytes) + shareColumn(bytes, survey_.stats.totalBytes) + "  " + name);
    }

    void writeTypes() {
        std::vector<std::pair<FileType, TypeTally>> types;
        for (const FileType type : allFileTypes)
            if (survey_.insights.typeTotals.contains(type)) types.emplace_back(type, survey_.insights.typeTotals[type]);
        if (types.empty()) return;
        std::stable_sort(types.begin(), types.end(),
                         [](const auto& a, const auto& b) { return a.second.bytes > b.second.bytes; });
        title("Types");
        for (const auto& [type, tally] : types)
            line(sizeColumn(tally.bytes) + shareColumn(tally.bytes, survey_.stats.totalBytes) + "  " +
                 right(grouped(tally.count), countColumns) + "  " + std::string(nameOf(type)));
    }

    void writeFiles() {
        const std::vector<LargeFile>& files = survey_.insights.topFiles;
        const std::size_t shown = shownOf(files.size());
        if (shown == 0) return;
        title("Largest files");
        for (std::size_t at = 0; at < shown; ++at)
            line(sizeColumn(files[at].size) + "  " + visibleText(files[at].path));
    }

    void writeReclaimables() {
        const ReclaimTotals totals = totalsByCategory(survey_.reclaimables);
        if (totals.empty()) return;
        title("Can be had again: " + byteText(totalSize(survey_.reclaimables)));
        for (const auto& [category, bytes] : totals)
            line(sizeColumn(bytes) + "  " + left(std::string(rawValue(category->safety)), safetyColumns) + "  " +
                 std::string(category->displayName));
    }

    void writeGrowth() {
        if (!survey_.growth) return;
        const Growth& growth = *survey_.growth;
        const std::int64_t change = sizeGrowth(growth.totalBefore, survey_.stats.totalBytes);
        title("Since " + dateText(growth.since) + ": " +
              (change == 0 ? "as much" : byteText(std::abs(change)) + (change > 0 ? " more" : " less")));
        std::vector<FolderChange> grown = growth.changes.grew;
        grown.insert(grown.end(), growth.changes.appeared.begin(), growth.changes.appeared.end());
        std::stable_sort(grown.begin(), grown.end(), [](const FolderChange& a, const FolderChange& b) {
            return sizeGrowth(a.oldSize, a.newSize) > sizeGrowth(b.oldSize, b.newSize);
        });
        const std::size_t shown = shownOf(grown.size());
        for (std::size_t at = 0; at < shown; ++at) {
            const FolderChange& one = grown[at];
            line("  " + right("+" + byteText(sizeGrowth(one.oldSize, one.newSize)), changeColumns) +
                 sizeColumn(one.newSize) + "  " + (one.oldSize == 0 ? "new  " : "     ") + visibleText(one.path));
        }
        if (shown < grown.size()) line("  (" + grouped(static_cast<std::int64_t>(grown.size() - shown)) + " more)");
    }

    Output& output_;
    const Survey& survey_;
    const std::uint64_t top_;
};

}  // namespace

void writeTable(Output& output, const Survey& survey, std::uint64_t top) {
    Table(output, survey, top).write();
}

}  // namespace zelk::cli
