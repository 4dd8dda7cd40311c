// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <vector>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

/// What a clean-up would take, row by row: fixed when it was reviewed. Main thread.
class DryRunRows : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of DryRunModel")

public:
    enum Role { symbolRole = Qt::UserRole, nameRole, folderRole, sizeRole, methodRole, spokenRole };

    explicit DryRunRows(std::vector<Reclaimable> items, QObject* parent = nullptr);

    const std::vector<Reclaimable>& items() const { return items_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    const std::vector<Reclaimable> items_;
};

}  // namespace zelk
