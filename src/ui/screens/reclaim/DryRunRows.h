// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <vector>

#include "reclaim/ReclaimCatalogue.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model of the items under review; does not change after construction. Main thread.
class DryRunRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of DryRunModel")

public:
    enum Role { symbolRole = Qt::UserRole, nameRole, folderRole, sizeRole, methodRole, spokenRole };

    explicit DryRunRows(std::vector<Reclaimable> items, QObject* parent = nullptr);

    const std::vector<Reclaimable>& items() const { return items_; }

private:
    std::size_t size() const override { return items_.size(); }
    QVariant value(std::size_t row, int role) const override;

    const std::vector<Reclaimable> items_;
};

}  // namespace zelk
