// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include "reclaim/ReclaimCatalogue.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model that explains the three grades, one per row. Main thread.
class SafetyGuide : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of ReclaimScreenModel")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString closing READ closing CONSTANT FINAL)
    Q_PROPERTY(QString spoken READ spoken CONSTANT FINAL)

public:
    enum Role { gradeRole = Qt::UserRole, tintRole, meaningRole };

    explicit SafetyGuide(QObject* parent = nullptr) : RowModel({"grade", "tint", "meaning"}, parent) {}

    QString title() const;
    QString closing() const;
    /// The whole guide as one text for screen readers.
    QString spoken() const;

private:
    std::size_t size() const override { return allReclaimSafeties.size(); }
    QVariant value(std::size_t row, int role) const override;
};

}  // namespace zelk
