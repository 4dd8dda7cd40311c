// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>

namespace zelk {

/// What the three grades mean: a row each. Main thread.
class SafetyGuide : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of ReclaimScreenModel")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString closing READ closing CONSTANT FINAL)
    Q_PROPERTY(QString spoken READ spoken CONSTANT FINAL)

public:
    enum Role { gradeRole = Qt::UserRole, tintRole, meaningRole };

    using QAbstractListModel::QAbstractListModel;

    QString title() const;
    QString closing() const;
    /// All of it in one breath.
    QString spoken() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};

}  // namespace zelk
