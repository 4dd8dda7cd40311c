// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>
#include <vector>

#include "state/SurveyRecord.h"
#include "ui/controls/RowModel.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// List model of the folders that grew, appeared or vanished between the last two surveys, in three sections. Empty
/// sections are left out. Main thread.
class ChangesModel : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of TrendsModel")
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)

public:
    /// Only the first row of a section has a heading; `tint` is the heading's colour.
    enum Role { headingRole = Qt::UserRole, tintRole, nameRole, pathRole, sizeRole };

    explicit ChangesModel(QObject* parent = nullptr) : RowModel({"heading", "tint", "name", "path", "size"}, parent) {}

    void show(const FolderChanges& changes);
    void setTheme(const ZelkTheme& theme);

    bool empty() const { return rows_.empty(); }

signals:
    void emptyChanged();

private:
    std::size_t size() const override { return rows_.size(); }
    QVariant value(std::size_t at, int role) const override;

    enum class Kind { grew, appeared, gone };
    struct Row {
        Kind kind;
        FolderChange change;
    };

    void add(Kind kind, const std::vector<FolderChange>& changes);
    QString heading(Kind kind) const;
    bool isFirst(std::size_t at) const;
    QColor color(Kind kind) const;
    static QString sizeText(const Row& row);

    std::vector<Row> rows_;
    const ZelkTheme* theme_ = &ZelkTheme::dark();
};

}  // namespace zelk
