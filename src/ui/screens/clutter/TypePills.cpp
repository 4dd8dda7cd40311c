// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/TypePills.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "ui/theme/FileTypeLook.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

void TypePills::show(const std::vector<FileType>& types) {
    std::vector<Filter> pills{Filter()};
    pills.insert(pills.end(), types.begin(), types.end());
    edit(pills_, std::move(pills), [](const Filter& type) { return type ? rawValue(*type) : std::string_view(); });
    allRowsChanged({reachedRole});
}

void TypePills::choose(Filter filter) {
    chosen_ = filter;
    allRowsChanged({chosenRole, reachedRole});
}

void TypePills::setTheme(const ZelkTheme& theme) {
    theme_ = &theme;
    allRowsChanged({tintRole});
}

QVariant TypePills::value(std::size_t row, int role) const {
    const Filter& type = pills_[row];
    switch (role) {
        case Qt::DisplayRole:
        case nameRole:
            return type ? lookOf(*type, *theme_).name : tr("All");
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

}  // namespace zelk

#include "moc_TypePills.cpp"
