// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <vector>

#include "scan/ScanInsights.h"
#include "ui/controls/EditedList.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// The first few of a survey's largest files. Main thread.
class LargestFiles : public zelk::EditedList {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of FindingsModel")

public:
    static constexpr std::size_t mostRows = 5;

    enum Role { symbolRole = Qt::UserRole, tintRole, nameRole, pathRole, sizeRole };

    using EditedList::EditedList;

    /// From here on the rows are the first of these: rows that stay are neither moved nor made anew.
    void show(const std::vector<LargeFile>& files);
    void setTheme(const ZelkTheme& theme);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<LargeFile> files_;
    const ZelkTheme* theme_ = &ZelkTheme::dark();
};

}  // namespace zelk
