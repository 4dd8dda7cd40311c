// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>
#include <vector>

#include "state/Screen.h"
#include "ui/controls/RowModel.h"

namespace zelk {

class AppModel;

/// List model of the finding cards, one per module that continues from a survey. Always the same cards in the same
/// order. Main thread.
class FindingCards : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of FindingsModel")

public:
    struct Card {
        QString symbol;
        QString title;
        qint64 value;  ///< bytes
        QString detail;
        QColor tint;
        Screen screen;

        bool operator==(const Card&) const = default;
    };

    enum Role { symbolRole = Qt::UserRole, titleRole, valueRole, detailRole, tintRole };

    /// `app` must outlive it.
    explicit FindingCards(AppModel& app, QObject* parent = nullptr);

    /// Updates all values from the AppModel.
    void refresh();
    const std::vector<Card>& cards() const { return cards_; }

public slots:
    /// Opens the card's module.
    void press(int row);

private:
    std::size_t size() const override { return cards_.size(); }
    QVariant value(std::size_t row, int role) const override;

    AppModel& app_;
    std::vector<Card> cards_;
};

}  // namespace zelk
