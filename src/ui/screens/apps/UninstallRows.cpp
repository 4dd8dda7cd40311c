// SPDX-License-Identifier: MIT
#include "ui/screens/apps/UninstallRows.h"

#include <cstdint>
#include <utility>

#include "ui/controls/AccessibleText.h"
#include "ui/screens/apps/AppTexts.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

UninstallRows::UninstallRows() : RowModel({"symbol", "name", "figure", "fate", "spoken"}) {}

void UninstallRows::show(const AppEntry& app, const std::vector<Leftover>& leftovers,
                         const std::optional<std::string>& home) {
    const auto figureOf = [](std::uint64_t bytes) { return byteFigure(static_cast<std::int64_t>(bytes)); };
    const auto placed = [&home](const std::string& path, const QString& fate) {
        if (!home) return fate;
        const QString place = AppTexts::place(path, *home);
        return fate.isEmpty() ? place : tr("%1 · %2", "a path, and what becomes of it").arg(place, fate);
    };
    const QString itsFate = AppTexts::fate(app.kind);
    const bool isInTrash = goesToTrash(app.kind);
    std::vector<Row> rows{{true, AppTexts::part(app), figureOf(app.size), isInTrash ? placed(app.url, {}) : itsFate}};
    for (const std::string& one : app.alongside) rows.push_back({true, displayText(one), {}, itsFate});
    const QString toTrash = isInTrash ? QString() : tr("to the Trash");
    for (const Leftover& one : leftovers) {
        const bool isOfSnap = app.kind == AppKind::snap && nameText(one.url) == displayText(app.package);
        rows.push_back({false, nameText(one.url), figureOf(one.size), placed(one.url, isOfSnap ? itsFate : toTrash)});
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

QVariant UninstallRows::value(std::size_t row, int role) const {
    const Row& one = rows_[row];
    switch (role) {
        case symbolRole:
            return one.isApp ? QStringLiteral("app") : QStringLiteral("doc");
        case nameRole:
            return one.name;
        case figureRole:
            return one.figure;
        case fateRole:
            return one.fate;
        case spokenRole:
            return AccessibleText::joined({one.name, one.figure, one.fate});
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_UninstallRows.cpp"
