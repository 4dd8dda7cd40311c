// SPDX-License-Identifier: MIT
#include "ui/screens/duplicates/DuplicateRows.h"

#include <QColor>
#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "state/Figures.h"
#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SafetyLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

DuplicateRows::Card::Card(const DuplicateGroup& group)
    : hash(group.hash), size(group.size), recoverable(group.recoverable()), paths(group.paths) {
    std::set<std::pair<std::uint64_t, std::uint64_t>> known;
    for (const HashedFile& file : group.files)
        linked.push_back(!known.insert({file.stamp.identity.device, file.stamp.identity.inode}).second);
    linked.resize(paths.size());
}

QStringList DuplicateRows::tags() const {
    return {tagOf(true), tagOf(false)};
}

QString DuplicateRows::tagOf(bool kept) {
    return kept ? tr("keep") : tr("dup");
}

void DuplicateRows::show(const std::vector<DuplicateGroup>& groups) {
    const auto isShown = [](const Card& card, const DuplicateGroup& group) { return card.shows(group); };
    const auto [before, first] = std::mismatch(cards_.begin(), cards_.end(), groups.begin(), groups.end(), isShown);
    const auto [after, last] = std::mismatch(cards_.rbegin(), std::make_reverse_iterator(before), groups.rbegin(),
                                             std::make_reverse_iterator(first), isShown);
    const auto begin = before - cards_.begin();
    const auto end = after.base() - cards_.begin();
    const auto rowOf = [this](std::ptrdiff_t card) {
        return static_cast<int>(
            static_cast<std::size_t>(card) == cards_.size() ? size() : starts_[static_cast<std::size_t>(card)]);
    };
    if (begin != end) {
        beginRemoveRows({}, rowOf(begin), rowOf(end) - 1);
        cards_.erase(cards_.begin() + begin, cards_.begin() + end);
        count();
        endRemoveRows();
    }
    std::vector<Card> added(first, last.base());
    if (added.empty()) return;
    std::size_t rows = 0;
    for (const Card& card : added) rows += card.rows();
    const int row = rowOf(begin);
    beginInsertRows({}, row, row + static_cast<int>(rows) - 1);
    cards_.insert(cards_.begin() + begin, std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
    count();
    endInsertRows();
}

void DuplicateRows::count() {
    starts_.clear();
    std::size_t row = 0;
    for (const Card& card : cards_) {
        starts_.push_back(row);
        row += card.rows();
    }
}

DuplicateRows::Place DuplicateRows::placeOf(std::size_t row) const {
    const auto next = std::upper_bound(starts_.begin(), starts_.end(), row);
    const auto card = static_cast<std::size_t>(next - starts_.begin()) - 1;
    return {&cards_[card], row - starts_[card]};
}

bool DuplicateRows::isHead(int row) const {
    return has(row) && placeOf(static_cast<std::size_t>(row)).row == 0;
}

std::string DuplicateRows::pathAt(int row) const {
    if (!has(row)) return {};
    const Place place = placeOf(static_cast<std::size_t>(row));
    return place.card->paths[place.row == 0 ? 0 : place.row - 1];
}

std::string DuplicateRows::hashAt(int row) const {
    return has(row) ? placeOf(static_cast<std::size_t>(row)).card->hash : std::string();
}

QVariant DuplicateRows::value(std::size_t row, int role) const {
    const Place at = placeOf(row);
    const Card* const card = at.card;
    const std::size_t place = at.row;
    const bool isHead = place == 0;
    const std::string& path = card->paths[isHead ? 0 : place - 1];
    const auto text = [&] {
        if (!isHead) return displayText(path);
        return tr("%1 copies · %2 each", "", forPlural(std::ssize(card->paths)))
            .arg(QString::number(card->paths.size()), byteFigure(card->size));
    };
    const auto gain = [&] { return isHead ? tr("save %1").arg(byteFigure(card->recoverable)) : QString(); };
    const auto tag = [&] { return isHead ? QString() : tagOf(place == 1); };
    const auto note = [&] { return !isHead && card->linked[place - 1] ? tr("hard link") : QString(); };
    switch (role) {
        case headRole:
            return isHead;
        case lastRole:
            return place == card->paths.size();
        case textRole:
            return text();
        case gainRole:
            return gain();
        case tagRole:
            return tag();
        case tintRole:
            return place == 1 ? colorOf(ReclaimSafety::safe) : QColor();
        case noteRole:
            return note();
        case spokenRole:
            return AccessibleText::joined({tag(), text(), note(), gain()});
        case actionRole:
            return (isHead ? tr("Keep first, trash rest: %1") : SystemTexts::of(SystemTexts::RevealFile) + ": %1")
                .arg(nameText(path));
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_DuplicateRows.cpp"
