// SPDX-License-Identifier: MIT
#include "ui/screens/explanation/ExplanationModel.h"

#include <utility>

#include "ui/theme/DisplayText.h"
#include "ui/theme/SafetyLook.h"

namespace zelk {

ExplanationModel::ExplanationModel(std::string home) : home_(std::move(home)), explanation_(explain(path_, home_)) {}

void ExplanationModel::open(const std::string& path) {
    path_ = path;
    explanation_ = explain(path_, home_);
    shown_ = true;
    emit changed();
}

void ExplanationModel::close() {
    if (std::exchange(shown_, false)) emit changed();
}

QString ExplanationModel::title() const {
    return displayText(explanation_.title);
}
QString ExplanationModel::path() const {
    return displayText(path_);
}
QString ExplanationModel::badge() const {
    return wordOf(explanation_.safety);
}

QString ExplanationModel::detail() const {
    return displayText(explanation_.detail);
}

}  // namespace zelk

#include "moc_ExplanationModel.cpp"
