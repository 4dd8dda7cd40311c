// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "state/PrivacyModel.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model of what browsers left behind. Main thread.
class TraceRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of PrivacyScreenModel")

public:
    enum Role {
        titleRole = Qt::UserRole,
        placeRole,    ///< the first of its paths
        warningRole,  ///< which application to quit first; empty if none is running
        runningRole,
        tickedRole,
        sizeRole,
        spokenRole
    };

    /// `privacy` must outlive it.
    explicit TraceRows(const PrivacyModel& privacy);

    /// Shows what the model has by now. Delegates of rows that stay are kept.
    void show();
    void tellTicks() { allRowsChanged({tickedRole}); }
    void tellRunning();
    /// Whether a browser of any row runs.
    bool hasRunning() const;

    /// Absent for invalid rows.
    std::optional<std::string> identityAt(int row) const;
    /// Whether the row can be ticked: its browser is not running.
    bool isFree(int row) const;

private:
    struct Row {
        PrivacyModel::Trace trace;
        std::string identity;
        std::optional<std::string> running;
    };

    std::size_t size() const override { return rows_.size(); }
    QVariant value(std::size_t row, int role) const override;
    QString warning(const Row& row) const;

    const PrivacyModel& privacy_;
    std::vector<Row> rows_;
};

}  // namespace zelk
