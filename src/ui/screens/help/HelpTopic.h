// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "state/Screen.h"

namespace zelk {

/// One page of the manual.
struct HelpTopic {
    int id;  ///< its place in the list, which never changes
    QString title;
    std::optional<Screen> screen;  ///< none where it speaks of the whole application
    QString lead;
    QStringList paragraphs;

    /// Its screen's, or those of a question where it has none.
    QString symbol() const;
    QColor color() const;
};

/// The manual, in order. The texts are the same on every system.
const std::vector<HelpTopic>& helpTopics();

}  // namespace zelk
