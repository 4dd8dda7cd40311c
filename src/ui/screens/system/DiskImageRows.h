// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <string>
#include <vector>

#include "scan/ScanInsights.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model of the big disk images of the last survey. Main thread.
class DiskImageRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SystemScreenModel")

public:
    enum Role {
        nameRole = Qt::UserRole,
        folderRole,
        sizeRole,
        adviceRole,
        spokenRole,
        explainNameRole,  ///< the accessible names of the two buttons
        revealNameRole
    };

    DiskImageRows() : RowModel({"name", "folder", "size", "advice", "spoken", "explainName", "revealName"}) {}

    /// Shows `images` in this order. Delegates of rows that stay are kept.
    void show(std::vector<LargeFile> images);

    /// The path of the file in this row, in bytes; empty for invalid rows.
    std::string pathAt(int row) const;

private:
    std::size_t size() const override { return images_.size(); }
    QVariant value(std::size_t row, int role) const override;

    std::vector<LargeFile> images_;
};

}  // namespace zelk
