// SPDX-License-Identifier: MIT
#include "ui/clutter/TypePills.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "ui/components/FileTypeLook.h"
#include "ui/components/RowEdits.h"
#include "ui/components/ScreenLook.h"

namespace zelk {

namespace {

std::vector<std::string_view> keysOf(const std::vector<TypePills::Filter>& pills) {
    std::vector<std::string_view> keys;
    keys.reserve(pills.size());
    for (const TypePills::Filter& type : pills) keys.push_back(type ? rawValue(*type) : std::string_view());
    return keys;
}

}  // namespace

void TypePills::show(const std::vector<FileType>& types) {
    std::vector<Filter> pills{Filter()};
    pills.insert(pills.end(), types.begin(), types.end());
    const RowEdits edits = rowEdits(keysOf(pills_), keysOf(pills));
    const auto at = [](auto& list, std::size_t row) { return list.begin() + static_cast<std::ptrdiff_t>(row); };
    for (const auto& [first, count] : edits.removals) {
        beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
        pills_.erase(at(pills_, first), at(pills_, first + count));
        endRemoveRows();
    }
    for (const auto& [first, count] : edits.insertions) {
        beginInsertRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
        pills_.insert(at(pills_, first), at(pills, first), at(pills, first + count));
        endInsertRows();
    }
    emit dataChanged(index(0), index(rowCount() - 1), {reachedRole});
}

void TypePills::choose(Filter filter) {
    chosen_ = filter;
    emit dataChanged(index(0), index(rowCount() - 1), {chosenRole, reachedRole});
}

void TypePills::setTheme(const ZelkTheme& theme) {
    theme_ = &theme;
    emit dataChanged(index(0), index(rowCount() - 1), {tintRole});
}

int TypePills::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(pills_.size());
}

QVariant TypePills::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const auto row = static_cast<std::size_t>(index.row());
    const Filter& type = pills_[row];
    switch (role) {
        case Qt::DisplayRole:
        case nameRole:
            return type ? lookOf(*type, *theme_).name : QStringLiteral("All");
        case symbolRole:
            return type ? lookOf(*type, *theme_).symbol : lookOf(Screen::clutter).symbol;
        case tintRole:
            return type ? lookOf(*type, *theme_).color : lookOf(Screen::clutter).color;
        case chosenRole:
            return type == chosen_;
        case reachedRole:
            return isReached(row);
        default:
            return {};
    }
}

bool TypePills::isReached(std::size_t row) const {
    if (pills_[row] == chosen_) return true;
    return row == 0 && std::find(pills_.begin(), pills_.end(), chosen_) == pills_.end();
}

QHash<int, QByteArray> TypePills::roleNames() const {
    return {{nameRole, "name"},
            {symbolRole, "symbol"},
            {tintRole, "tint"},
            {chosenRole, "chosen"},
            {reachedRole, "reached"}};
}

}  // namespace zelk
