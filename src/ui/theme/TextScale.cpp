// SPDX-License-Identifier: MIT
#include "ui/theme/TextScale.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>

#include "ui/theme/DesktopSettings.h"

namespace zelk {

bool toolkitScalesTexts(const QString& platformName) {
    return platformName == QStringLiteral("xcb");
}

TextScale::TextScale(QObject* parent) : TextScale(DesktopSettings::ofApplication(), parent) {}

TextScale::TextScale(const DesktopSettings& desktop, QObject* parent) : QObject(parent), desktop_(desktop) {
    if (toolkitScalesTexts(QGuiApplication::platformName())) return;
    connect(&desktop, &DesktopSettings::textFactorChanged, this, [this] { apply(desktop_.textFactor()); });
    apply(desktop.textFactor());
}

void TextScale::setFactor(qreal factor) {
    disconnect(&desktop_, nullptr, this, nullptr);
    apply(factor);
}

void TextScale::apply(qreal factor) {
    const qreal clamped = std::clamp(factor, smallest, largest);
    if (std::exchange(factor_, clamped) != clamped) emit factorChanged();
}

}  // namespace zelk

#include "moc_TextScale.cpp"
