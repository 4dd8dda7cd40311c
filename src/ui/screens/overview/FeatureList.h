// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QString>
#include <vector>

#include "state/Screen.h"

namespace zelk {

/// What a survey leads to, as it is offered before the first one: a constant list.
class FeatureList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SurveyScreenModel")

public:
    struct Feature {
        QString symbol;
        QString label;
        Screen screen;
    };

    enum Role { symbolRole = Qt::UserRole, labelRole, tintRole };

    using QAbstractListModel::QAbstractListModel;

    static const std::vector<Feature>& features();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};

}  // namespace zelk
