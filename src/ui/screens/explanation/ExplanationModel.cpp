// SPDX-License-Identifier: MIT
#include "ui/screens/explanation/ExplanationModel.h"

#include <utility>

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

}  // namespace zelk

#include "moc_ExplanationModel.cpp"
