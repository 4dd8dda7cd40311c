// SPDX-License-Identifier: MIT
#include "ui/screens/privacy/TraceRows.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

TraceRows::TraceRows(const PrivacyModel& privacy)
    : RowModel({"title", "place", "warning", "running", "ticked", "size", "spoken"}), privacy_(privacy) {}

void TraceRows::show() {
    std::vector<Row> rows;
    for (const PrivacyModel::Trace& trace : privacy_.traces())
        rows.push_back({trace, trace.identity(), privacy_.runningBrowser(trace.app)});
    edit(rows_, std::move(rows), [](const Row& row) { return std::string_view(row.identity); });
    allRowsChanged();
}

void TraceRows::tellRunning() {
    bool changed = false;
    for (Row& row : rows_) {
        std::optional<std::string> running = privacy_.runningBrowser(row.trace.app);
        changed = changed || running != row.running;
        row.running = std::move(running);
    }
    if (changed) allRowsChanged({placeRole, warningRole, runningRole, spokenRole});
}

bool TraceRows::hasRunning() const {
    return std::any_of(rows_.begin(), rows_.end(), [](const Row& row) { return row.running.has_value(); });
}

std::optional<std::string> TraceRows::identityAt(int row) const {
    return has(row) ? std::optional(rows_[static_cast<std::size_t>(row)].identity) : std::nullopt;
}

bool TraceRows::isFree(int row) const {
    return has(row) && !rows_[static_cast<std::size_t>(row)].running;
}

QString TraceRows::warning(const Row& row) const {
    if (!row.running) return {};
    return privacy_.runningKnown() ? tr("quit %1 to clear safely").arg(displayText(*row.running))
                                   : tr("%1 may be running: quit it before clearing").arg(displayText(*row.running));
}

QVariant TraceRows::value(std::size_t row, int role) const {
    const Row& shown = rows_[row];
    const auto title = [&] {
        return inReadingOrder(
            tr("%1 — %2").arg(isolated(SystemTexts::worded(shown.trace.app)), SystemTexts::worded(shown.trace.kind)));
    };
    const auto place = [&] { return shown.running ? QString() : displayText(shown.trace.paths.front()); };
    const auto figure = [&] { return byteFigure(static_cast<std::int64_t>(shown.trace.size)); };
    switch (role) {
        case titleRole:
            return title();
        case placeRole:
            return place();
        case warningRole:
            return warning(shown);
        case runningRole:
            return shown.running.has_value();
        case tickedRole:
            return privacy_.selected().contains(shown.identity);
        case sizeRole:
            return figure();
        case spokenRole:
            return AccessibleText::joined({title(), warning(shown), place(), figure()});
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_TraceRows.cpp"
