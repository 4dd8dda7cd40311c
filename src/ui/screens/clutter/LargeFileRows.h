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
    QML_ANONYMOUS

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

    LargeFileRows();

    /// Shows `files` in this order, with ages as of `now`. Delegates of rows that stay are kept.
    void show(std::vector<LargeFile> files, TimePoint now);

    /// The path of the file in this row, in bytes; empty for invalid rows.
    std::string pathAt(int row) const;

private:
    std::vector<LargeFile> files_;
    TimePoint now_ = 0;
};

}  // namespace zelk
