// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QUrl>
#include <QVariantMap>
#include <functional>
#include <vector>

#include "state/Screen.h"

namespace zelk {

class AppModel;

/// The screens of the detail, a row for each in the order of Screen. One is built when it is first gone to, and kept;
/// the current one alone is seen. Main thread.
class DetailPages : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")

public:
    enum Role { viewRole = Qt::UserRole, builtRole, currentRole };

    struct Page {
        QUrl view;
        std::function<QVariantMap()> given;  ///< the view's required properties; asked for once
    };

    /// `app` must outlive it; `pages` has one for every screen.
    DetailPages(AppModel& app, std::vector<Page> pages);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// What the view of this row needs.
    Q_INVOKABLE QVariantMap given(int row) const;

private:
    void followSelection();

    AppModel& app_;
    std::vector<Page> pages_;
    std::vector<bool> built_;
    int current_ = 0;
};

}  // namespace zelk
