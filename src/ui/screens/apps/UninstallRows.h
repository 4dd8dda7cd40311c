// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <cstdint>
#include <string>
#include <vector>

#include "reclaim/AppEntry.h"
#include "reclaim/Leftovers.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model of what goes with an application: first it, then its leftovers. Main thread.
class UninstallRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of UninstallModel")

public:
    enum Role {
        symbolRole = Qt::UserRole,
        nameRole,
        figureRole,  ///< the size, with unit
        fateRole,    ///< what becomes of it; empty where all goes to the Trash
        spokenRole
    };

    UninstallRows();

    void show(const AppEntry& app, const std::vector<Leftover>& leftovers);

private:
    struct Row {
        bool isApp = false;
        std::string path;  ///< identifies it
        QString name;
        std::uint64_t bytes = 0;
        QString fate;
    };

    std::size_t size() const override { return rows_.size(); }
    QVariant value(std::size_t row, int role) const override;

    std::vector<Row> rows_;
};

}  // namespace zelk
