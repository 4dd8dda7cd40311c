// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QLocale>
#include <string>
#include <vector>

#include "state/UserLocale.h"
#include "system/LocalSnapshot.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// A point in time in the user's time zone, with an abbreviated month and without seconds: "Mar 7, 2024, 10:15 AM".
QString shortDate(TimePoint time, const QLocale& locale = userLocale());

/// List model of the local snapshots. Main thread.
class SnapshotRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SnapshotsModel")

public:
    enum Role {
        kindRole = Qt::UserRole,
        noteRole,  ///< the name that a person gave it, where the system has such names; may be empty
        dateRole,
        purgeableRole,
        tagRole,
        spokenRole,
        deleteNameRole  ///< the accessible name of the button
    };

    SnapshotRows() : RowModel({"kind", "note", "date", "purgeable", "tag", "spoken", "deleteName"}) {}

    /// Shows `snapshots` in this order. Delegates of rows that stay are kept.
    void show(const std::vector<LocalSnapshot>& snapshots);

    /// The snapshot in this row; nullptr for invalid rows.
    const LocalSnapshot* at(int row) const;

private:
    struct Row {
        LocalSnapshot snapshot;
        std::string key;  ///< unique, even if the tool repeats itself
    };

    std::size_t size() const override { return rows_.size(); }
    QVariant value(std::size_t row, int role) const override;

    std::vector<Row> rows_;
};

}  // namespace zelk
