// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <string>
#include <vector>

namespace zelk {

class AppModel;

/// The folders that a survey walks, as the AppModel has them: a row for each, in its order. Paths are bytes; what is
/// shown is made of them and never goes back. Main thread.
class ScanRootList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SettingsScreenModel")
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)

public:
    enum Role { pathRole = Qt::UserRole, removeNameRole };

    /// `app` must outlive it.
    explicit ScanRootList(AppModel& app);

    bool empty() const { return roots_.empty(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void emptyChanged();

private:
    void follow();

    AppModel& app_;
    std::vector<std::string> roots_;
};

}  // namespace zelk
