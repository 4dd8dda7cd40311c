// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "reclaim/AppEntry.h"
#include "reclaim/Leftovers.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model of what goes with an application: first it, then the applications that its tool cannot part from it, then
/// its leftovers. Main thread.
class UninstallRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of UninstallModel")

public:
    enum Role {
        symbolRole = Qt::UserRole,
        nameRole,
        figureRole,  ///< the size, with unit; empty where that of another row includes it
        fateRole,    ///< where it is and what becomes of it, each unless that goes without saying
        spokenRole
    };

    UninstallRows();

    /// Without a `home` no row says where it is.
    void show(const AppEntry& app, const std::vector<Leftover>& leftovers, const std::optional<std::string>& home);

private:
    struct Row {
        bool isApp = false;
        QString name;
        QString figure;
        QString fate;
    };

    std::size_t size() const override { return rows_.size(); }
    QVariant value(std::size_t row, int role) const override;

    std::vector<Row> rows_;
};

}  // namespace zelk
