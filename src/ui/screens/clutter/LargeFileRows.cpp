// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/LargeFileRows.h"

#include <string_view>
#include <utility>

#include "state/Figures.h"
#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/FileTypeLook.h"

namespace zelk {

namespace {

/// The time since `modified` in whole days, months of 30 days or years of 365 days. Future times are "today".
QString ageText(TimePoint modified, TimePoint now) {
    constexpr qint64 daysPerMonth = 30;
    constexpr qint64 daysPerYear = 365;
    const double exact = (now - modified) / secondsPerDay;
    if (!(exact >= 1)) return LargeFileRows::tr("today");
    const auto days = static_cast<qint64>(exact);
    if (days < daysPerMonth) return LargeFileRows::tr("%1d ago", "", forPlural(days)).arg(days);
    const qint64 months = days / daysPerMonth;
    if (days < daysPerYear) return LargeFileRows::tr("%1mo ago", "", forPlural(months)).arg(months);
    const qint64 years = days / daysPerYear;
    return LargeFileRows::tr("%1y ago", "", forPlural(years)).arg(years);
}

}  // namespace

LargeFileRows::LargeFileRows()
    : RowModel(files_,
               {{"symbol", [](const LargeFile& file) { return lookOf(file.type).symbol; }},
                {"tint", [](const LargeFile& file) { return lookOf(file.type).color; }},
                {"name", [](const LargeFile& file) { return nameText(file.path); }},
                {"path", [](const LargeFile& file) { return displayText(file.path); }},
                {"folder", [](const LargeFile& file) { return folderText(file.path); }},
                {"age", [this](const LargeFile& file) { return ageText(file.modified, now_); }},
                {"size", [](const LargeFile& file) { return byteFigure(file.size); }},
                {"bytes", [](const LargeFile& file) { return static_cast<qint64>(file.size); }},
                {"spoken",
                 [this](const LargeFile& file) {
                     return AccessibleText::joined({nameText(file.path), folderText(file.path),
                                                    ageText(file.modified, now_), byteFigure(file.size)});
                 }},
                {"actions", [](const LargeFile& file) { return tr("Actions for %1").arg(nameText(file.path)); }}}) {}

void LargeFileRows::show(std::vector<LargeFile> files, TimePoint now) {
    edit(files_, std::move(files), [](const LargeFile& file) { return std::string_view(file.path); });
    // Rows that stay may have new sizes, and all have new ages.
    now_ = now;
    allRowsChanged({ageRole, sizeRole, bytesRole, spokenRole});
}

std::string LargeFileRows::pathAt(int row) const {
    return has(row) ? files_[static_cast<std::size_t>(row)].path : std::string();
}

}  // namespace zelk

#include "moc_LargeFileRows.cpp"
