// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <string>
#include <vector>

#include "scan/ScanInsights.h"
#include "ui/controls/EditedList.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// Files with what a row tells of each. Main thread.
class LargeFileRows : public zelk::EditedList {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of the screens that list large files")

public:
    enum Role {
        symbolRole = Qt::UserRole,
        tintRole,
        nameRole,
        pathRole,
        folderRole,
        ageRole,
        sizeRole,
        spokenRole,
        actionsRole
    };

    using EditedList::EditedList;

    /// From here on the rows are these, in this order, and their ages those at `now`: rows that stay are not made anew.
    void show(std::vector<LargeFile> files, TimePoint now);
    void setTheme(const ZelkTheme& theme);

    /// The path of the file in this row; empty if there is no such row.
    std::string pathAt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<LargeFile> files_;
    TimePoint now_ = 0;
    const ZelkTheme* theme_ = &ZelkTheme::dark();
};

}  // namespace zelk
