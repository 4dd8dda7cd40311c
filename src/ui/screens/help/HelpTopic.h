// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QCoreApplication>
#include <QList>
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

}  // namespace zelk
