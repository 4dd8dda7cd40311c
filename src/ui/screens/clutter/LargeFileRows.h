// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <string>
#include <vector>

#include "scan/ScanInsights.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model of large files. Main thread.
class LargeFileRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of the screens that list large files")

public:
    enum Role {
        symbolRole = Qt::UserRole,
        tintRole,  ///< invalid for a file of no known type
        nameRole,
        pathRole,
        folderRole,
        ageRole,
        sizeRole,
        bytesRole,
        spokenRole,
        actionsRole
    };

    LargeFileRows()
        : RowModel({"symbol", "tint", "name", "path", "folder", "age", "size", "bytes", "spoken", "actions"}) {}

    /// Shows `files` in this order, with ages as of `now`. Delegates of rows that stay are kept.
    void show(std::vector<LargeFile> files, TimePoint now);

    /// The path of the file in this row, in bytes; empty for invalid rows.
    std::string pathAt(int row) const;

private:
    std::size_t size() const override { return files_.size(); }
    QVariant value(std::size_t row, int role) const override;

    std::vector<LargeFile> files_;
    TimePoint now_ = 0;
};

}  // namespace zelk
