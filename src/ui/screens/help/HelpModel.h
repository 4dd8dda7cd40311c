// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <optional>

#include "ui/screens/help/HelpTopic.h"

namespace zelk {

/// The topics of the manual and the one that is read. Main thread.
class HelpModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell")
    Q_PROPERTY(QList<zelk::HelpTopic> topics READ topics CONSTANT FINAL)
    Q_PROPERTY(int current READ current NOTIFY currentChanged FINAL)
    Q_PROPERTY(zelk::HelpTopic topic READ topic NOTIFY currentChanged FINAL)

public:
    using QObject::QObject;

    const QList<HelpTopic>& topics() const { return topics_; }
    /// The id of the topic that was chosen; none until then.
    std::optional<int> selection() const { return selection_; }
    /// The row of the topic that is shown: the chosen one, else the first.
    int current() const { return selection_.value_or(0); }
    const HelpTopic& topic() const { return topics_[current()]; }

public slots:
    /// Does nothing where there is no such row.
    void select(int row);
    /// The topic above or below the one that is shown; at the ends the list stays where it is.
    void selectPrevious() { select(current() - 1); }
    void selectNext() { select(current() + 1); }
    void selectFirst() { select(0); }
    void selectLast() { select(static_cast<int>(topics_.size()) - 1); }

signals:
    void currentChanged();

private:
    const QList<HelpTopic> topics_ = helpTopics();
    std::optional<int> selection_;
};

}  // namespace zelk
