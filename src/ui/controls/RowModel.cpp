// SPDX-License-Identifier: MIT
#include "ui/controls/RowModel.h"

#include <algorithm>
#include <unordered_map>

namespace zelk {

namespace {

constexpr std::size_t none = static_cast<std::size_t>(-1);

/// Marks the longest increasing subsequence of `values`, ignoring `none`.
std::vector<bool> longestIncreasing(const std::vector<std::size_t>& values) {
    std::vector<std::size_t> ends;                           // the last index of the best run of each length
    std::vector<std::size_t> previous(values.size(), none);  // the index before each one in its run
    for (std::size_t at = 0; at < values.size(); ++at) {
        if (values[at] == none) continue;
        const auto place = std::lower_bound(ends.begin(), ends.end(), values[at],
                                            [&](std::size_t end, std::size_t value) { return values[end] < value; });
        if (place != ends.begin()) previous[at] = *(place - 1);
        if (place == ends.end())
            ends.push_back(at);
        else
            *place = at;
    }
    std::vector<bool> rising(values.size(), false);
    for (std::size_t at = ends.empty() ? none : ends.back(); at != none; at = previous[at]) rising[at] = true;
    return rising;
}

/// The ranges of rows that do not stay.
std::vector<RowRange> gaps(const std::vector<bool>& stays) {
    std::vector<RowRange> ranges;
    for (std::size_t row = 0; row < stays.size(); ++row) {
        if (stays[row]) continue;
        if (row == 0 || stays[row - 1]) ranges.push_back({row, 0});
        ++ranges.back().count;
    }
    return ranges;
}

}  // namespace

RowEdits rowEdits(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after) {
    std::unordered_map<std::string_view, std::size_t> places;
    places.reserve(after.size());
    for (std::size_t row = 0; row < after.size(); ++row) places.emplace(after[row], row);
    std::vector<std::size_t> newRows(before.size(), none);
    for (std::size_t row = 0; row < before.size(); ++row)
        if (const auto place = places.find(before[row]); place != places.end()) newRows[row] = place->second;

    const std::vector<bool> stays = longestIncreasing(newRows);
    std::vector<bool> kept(after.size(), false);
    for (std::size_t row = 0; row < before.size(); ++row)
        if (stays[row]) kept[newRows[row]] = true;

    RowEdits edits{gaps(stays), gaps(kept)};
    std::reverse(edits.removals.begin(), edits.removals.end());
    return edits;
}

RowModel::RowModel(std::initializer_list<const char*> roles, QObject* parent) : QAbstractListModel(parent) {
    int role = Qt::UserRole;
    for (const char* name : roles) roles_.insert(role++, name);
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    return value(static_cast<std::size_t>(index.row()), role);
}

QVariant RowModel::value(std::size_t row, int role) const {
    const auto at = static_cast<std::size_t>(role - Qt::UserRole);
    return role >= Qt::UserRole && at < values_.size() ? values_[at](row) : QVariant();
}

void RowModel::rowsChanged(int first, int last, const QList<int>& roles) {
    if (first <= last) emit dataChanged(index(first), index(last), roles);
}

}  // namespace zelk

#include "moc_RowModel.cpp"
