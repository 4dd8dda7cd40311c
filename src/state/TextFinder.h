// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <string>

#include "state/UserLocale.h"

namespace zelk {

/// Finds a text in others, in any case: by the rules of the user's language and by those of all.
class TextFinder {
public:
    explicit TextFinder(const QString& wanted);

    /// Whether `bytes` contains the text.
    bool isIn(const std::string& bytes) const;

private:
    QLocale locale_ = userLocale();
    QString wanted_;
    QString lower_;
};

}  // namespace zelk
