// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QColor>
#include <QString>
#include <QStringList>
#include <optional>

#include "ui/screens/help/HelpTopic.h"

namespace zelk {

/// All that the manual's window says: the list of its topics and the one that is read. Main thread.
class HelpModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell")
    Q_PROPERTY(int current READ current NOTIFY currentChanged FINAL)
    Q_PROPERTY(QString symbol READ symbol NOTIFY currentChanged FINAL)
    Q_PROPERTY(QColor tint READ tint NOTIFY currentChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY currentChanged FINAL)
    Q_PROPERTY(QString lead READ lead NOTIFY currentChanged FINAL)
    Q_PROPERTY(QStringList paragraphs READ paragraphs NOTIFY currentChanged FINAL)
    Q_PROPERTY(QString listName READ listName CONSTANT FINAL)

public:
    enum Role { symbolRole = Qt::UserRole, tintRole, titleRole, currentRole };

    using QAbstractListModel::QAbstractListModel;

    /// The id of the topic that was chosen; none until then.
    std::optional<int> selection() const { return selection_; }

    /// The row of the topic that is shown: the chosen one, else the first.
    int current() const;
    QString symbol() const { return topic().symbol(); }
    QColor tint() const { return topic().color(); }
    QString title() const { return topic().title; }
    QString lead() const { return topic().lead; }
    QStringList paragraphs() const { return topic().paragraphs; }
    /// What a screen reader says of the list as a whole.
    QString listName() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

public slots:
    /// Does nothing where there is no such row.
    void select(int row);
    /// The topic above or below the one that is shown; at the ends the list stays where it is.
    void selectPrevious() { select(current() - 1); }
    void selectNext() { select(current() + 1); }
    void selectFirst() { select(0); }
    void selectLast() { select(rowCount() - 1); }

signals:
    void currentChanged();

private:
    const HelpTopic& topic() const { return helpTopics()[static_cast<std::size_t>(current())]; }

    std::optional<int> selection_;
};

}  // namespace zelk
