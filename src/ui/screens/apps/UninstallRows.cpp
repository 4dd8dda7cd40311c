// SPDX-License-Identifier: MIT
#include "ui/screens/apps/UninstallRows.h"

#include <string_view>
#include <utility>

#include "ui/controls/AccessibleText.h"
#include "ui/screens/apps/AppTexts.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

UninstallRows::UninstallRows() : RowModel({"symbol", "name", "figure", "fate", "spoken"}) {}

void UninstallRows::show(const AppEntry& app, const std::vector<Leftover>& leftovers) {
    std::vector<Row> rows{{true, app.url, AppTexts::part(app), app.size, AppTexts::fate(app.kind)}};
    const QString toTrash = goesToTrash(app.kind) ? QString() : tr("to the Trash");
    for (const Leftover& one : leftovers) {
        const bool isOfSnap = app.kind == AppKind::snap && nameText(one.url) == displayText(app.package);
        rows.push_back({false, one.url, nameText(one.url), one.size, isOfSnap ? AppTexts::fate(app.kind) : toTrash});
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

QVariant UninstallRows::value(std::size_t row, int role) const {
    const Row& one = rows_[row];
    const QString figure = byteFigure(static_cast<std::int64_t>(one.bytes));
    switch (role) {
        case symbolRole:
            return one.isApp ? QStringLiteral("app") : QStringLiteral("doc");
        case nameRole:
            return one.name;
        case figureRole:
            return figure;
        case fateRole:
            return one.fate;
        case spokenRole:
            return AccessibleText::joined({one.name, figure, one.fate});
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_UninstallRows.cpp"
