// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <optional>
#include <vector>

#include "scan/FileType.h"
#include "ui/controls/RowModel.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// List model of the filter pills: "All", then the available types. Main thread.
class TypePills : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of ClutterScreenModel")

public:
    /// `reached` marks the pill in the focus chain: the chosen one, or the first if the chosen one is gone.
    enum Role { nameRole = Qt::UserRole, symbolRole, tintRole, chosenRole, reachedRole };

    using Filter = std::optional<FileType>;  ///< none: all files

    explicit TypePills(QObject* parent = nullptr) : RowModel({"name", "symbol", "tint", "chosen", "reached"}, parent) {}

    /// Shows "All" and `types`. Delegates of pills that stay are kept.
    void show(const std::vector<FileType>& types);
    void choose(Filter filter);
    void setTheme(const ZelkTheme& theme);

    const Filter& chosen() const { return chosen_; }
    /// The filter of the pill in this row.
    Filter filterAt(int row) const { return pills_[static_cast<std::size_t>(row)]; }

private:
    std::size_t size() const override { return pills_.size(); }
    QVariant value(std::size_t row, int role) const override;

    bool isReached(std::size_t row) const;

    std::vector<Filter> pills_{Filter()};
    Filter chosen_;
    const ZelkTheme* theme_ = &ZelkTheme::dark();
};

}  // namespace zelk
