// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QColor>
#include <QString>
#include <vector>

#include "state/Screen.h"

namespace zelk {

class AppModel;

/// What a survey found for each of the modules that go on from it: always the same cards, in one order. Main thread.
class FindingCards : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of FindingsModel")

public:
    struct Card {
        QString symbol;
        QString title;
        QString value;
        QString detail;
        QColor tint;
        Screen screen;

        bool operator==(const Card&) const = default;
    };

    enum Role { symbolRole = Qt::UserRole, titleRole, valueRole, detailRole, tintRole };

    /// `app` must outlive it.
    explicit FindingCards(AppModel& app, QObject* parent = nullptr);

    /// Reads the figures anew.
    void refresh();
    const std::vector<Card>& cards() const { return cards_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

public slots:
    /// Goes to the card's module.
    void press(int row);

private:
    AppModel& app_;
    std::vector<Card> cards_;
};

}  // namespace zelk
