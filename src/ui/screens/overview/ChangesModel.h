// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QColor>
#include <QString>
#include <vector>

#include "state/SurveyRecord.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// The folders that grew, appeared or went between the last two surveys, in three sections of which an empty one is not
/// there. Main thread.
class ChangesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of TrendsModel")
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)

public:
    /// The first row of a section has its heading, in the colour of its tint.
    enum Role { headingRole = Qt::UserRole, tintRole, nameRole, pathRole, sizeRole };

    using QAbstractListModel::QAbstractListModel;

    void show(const FolderChanges& changes);
    void setTheme(const ZelkTheme& theme);

    bool empty() const { return rows_.empty(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void emptyChanged();

private:
    enum class Kind { grew, appeared, gone };
    struct Row {
        Kind kind;
        FolderChange change;
    };

    void add(Kind kind, const std::vector<FolderChange>& changes);
    QString heading(Kind kind) const;
    bool isFirst(int row) const;
    QColor color(Kind kind) const;
    static QString sizeText(const Row& row);

    std::vector<Row> rows_;
    const ZelkTheme* theme_ = &ZelkTheme::dark();
};

}  // namespace zelk
