// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QString>
#include <vector>

#include "platform/Vitals.h"
#include "ui/shell/BundleInfo.h"

namespace zelk {

/// All that the About window says: the name, and rows of a label and a value. Main thread.
class AboutModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)

public:
    enum Role { labelRole = Qt::UserRole, valueRole };

    struct Row {
        QString label;
        QString value;

        bool operator==(const Row&) const = default;
    };

    AboutModel(const BundleInfo& bundle, const DeviceInfo& device);

    const QString& name() const { return name_; }
    QString symbol() const;
    const std::vector<Row>& rows() const { return rows_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    QString name_;
    std::vector<Row> rows_;
};

}  // namespace zelk
