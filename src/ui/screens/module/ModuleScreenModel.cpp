// SPDX-License-Identifier: MIT
#include "ui/screens/module/ModuleScreenModel.h"

#include <utility>

#include "ui/theme/ScreenLook.h"

namespace zelk {

ModuleScreenModel::ModuleScreenModel(Screen screen, ModuleTexts texts, std::function<void()> onScan,
                                     std::function<void()> onCancel)
    : screen_(screen), texts_(std::move(texts)), onScan_(std::move(onScan)), onCancel_(std::move(onCancel)) {
    if (texts_.title.isEmpty()) texts_.title = lookOf(screen).title;
}

QString ModuleScreenModel::symbol() const {
    return lookOf(screen_).symbol;
}
QColor ModuleScreenModel::tint() const {
    return lookOf(screen_).color;
}

void ModuleScreenModel::setPhase(ModulePhase phase) {
    if (phase == phase_) return;
    phase_ = phase;
    emit phaseChanged();
}

void ModuleScreenModel::setScanDetail(const QString& detail) {
    if (detail == scanDetail_) return;
    scanDetail_ = detail;
    emit scanDetailChanged();
}

void ModuleScreenModel::scan() {
    if (onScan_) onScan_();
}

void ModuleScreenModel::cancel() {
    if (onCancel_ && scanning()) onCancel_();
}

}  // namespace zelk

#include "moc_ModuleScreenModel.cpp"
