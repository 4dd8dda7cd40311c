// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <string>
#include <vector>

#include "ui/controls/RowModel.h"

namespace zelk {

class AppModel;

/// List model of the AppModel's scan roots, in its order. Paths are bytes; display text is derived from them and never
/// converted back. Main thread.
class ScanRootList : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SettingsScreenModel")
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)

public:
    enum Role { pathRole = Qt::UserRole, removeNameRole };

    /// `app` must outlive it.
    explicit ScanRootList(AppModel& app);

    bool empty() const { return roots_.empty(); }

signals:
    void emptyChanged();

private:
    std::size_t size() const override { return roots_.size(); }
    QVariant value(std::size_t row, int role) const override;

    void follow();

    AppModel& app_;
    std::vector<std::string> roots_;
};

}  // namespace zelk
