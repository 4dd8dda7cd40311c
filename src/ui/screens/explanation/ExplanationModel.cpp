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

void ExplanationModel::setTheme(const ZelkTheme& theme) {
    if (std::exchange(theme_, &theme) != &theme) emit changed();
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

QColor ExplanationModel::tint() const {
    switch (explanation_.safety) {
        case ReclaimSafety::safe:
            return colorOf(ReclaimSafety::safe);
        case ReclaimSafety::regenerates:
            return theme_->accent;
        case ReclaimSafety::review:
            return theme_->alert;
    }
    return {};
}

QString ExplanationModel::detail() const {
    return displayText(explanation_.detail);
}

}  // namespace zelk

#include "moc_ExplanationModel.cpp"
