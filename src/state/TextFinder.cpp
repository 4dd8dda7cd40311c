// SPDX-License-Identifier: MIT
#include "state/TextFinder.h"

namespace zelk {

TextFinder::TextFinder(const QString& wanted)
    : wanted_(wanted.normalized(QString::NormalizationForm_C)), lower_(locale_.toLower(wanted_)) {}

bool TextFinder::isIn(const std::string& bytes) const {
    const QString text = QString::fromStdString(bytes).normalized(QString::NormalizationForm_C);
    return text.contains(wanted_, Qt::CaseInsensitive) || locale_.toLower(text).contains(lower_);
}

}  // namespace zelk
