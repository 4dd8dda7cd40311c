// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <optional>

#include "state/Screen.h"

namespace zelk {

/// A page of the manual.
struct HelpTopic {
    Q_GADGET
    QML_VALUE_TYPE(helpTopic)
    Q_DECLARE_TR_FUNCTIONS(HelpTopic)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString lead MEMBER lead FINAL)
    Q_PROPERTY(QStringList paragraphs MEMBER paragraphs FINAL)
    Q_PROPERTY(QString symbol READ symbol FINAL)
    Q_PROPERTY(QColor tint READ tint FINAL)

public:
    int id = 0;  ///< its fixed index in the list
    QString title;
    std::optional<Screen> screen;  ///< none if it is about the whole application
    QString lead;
    QStringList paragraphs;

    /// From its screen's look, or a question mark if it has no screen.
    QString symbol() const;
    QColor tint() const;

    bool operator==(const HelpTopic&) const = default;
};

/// All topics, in order.
QList<HelpTopic> helpTopics();

/// The help topics and the current one. Main thread.
class HelpModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<zelk::HelpTopic> topics READ topics CONSTANT FINAL)
    Q_PROPERTY(int current READ current NOTIFY currentChanged FINAL)
    Q_PROPERTY(zelk::HelpTopic topic READ topic NOTIFY currentChanged FINAL)

public:
    using QObject::QObject;

    const QList<HelpTopic>& topics() const { return topics_; }
    /// The id of the chosen topic; none before a choice.
    std::optional<int> selection() const { return selection_; }
    /// The row of the shown topic: the chosen one, else the first.
    int current() const { return selection_.value_or(0); }
    const HelpTopic& topic() const { return topics_[current()]; }

public slots:
    /// Ignores invalid rows.
    void select(int row);
    /// The previous and next topic; nothing at the ends of the list.
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
