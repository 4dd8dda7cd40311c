// SPDX-License-Identifier: MIT
#include "ui/theme/Theme.h"

#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QStyleHints>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/FileTypeLook.h"

namespace zelk {

namespace {

/// The colour scheme according to Qt, which knows it since 6.5.
DesktopScheme toolkitScheme() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    switch (QGuiApplication::styleHints()->colorScheme()) {
        case Qt::ColorScheme::Dark:
            return DesktopScheme::dark;
        case Qt::ColorScheme::Light:
            return DesktopScheme::light;
        case Qt::ColorScheme::Unknown:
            break;
    }
#endif
    return DesktopScheme::untold;
}

}  // namespace

bool desktopIsDark(DesktopScheme scheme, const QPalette& palette) {
    if (scheme != DesktopScheme::untold) return scheme == DesktopScheme::dark;
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

Theme::Theme(QObject* parent) : Theme(DesktopSettings::ofApplication(), parent) {}

Theme::Theme(const DesktopSettings& desktop, QObject* parent) : QObject(parent), desktop_(desktop) {
    connect(&desktop, &DesktopSettings::schemeChanged, this, &Theme::choose);
    // QGuiApplication's signal for the palette is deprecated since Qt 6.0; an event replaces it.
    QCoreApplication::instance()->installEventFilter(this);
}

void Theme::follow(AppModel& model) {
    model_ = &model;
    connect(&model, &AppModel::appearanceChanged, this, &Theme::choose);
    choose();
}

void Theme::choose() {
    if (model_.isNull()) return;
    const AppModel::Appearance appearance = model_->appearance();
    const DesktopScheme told = desktop_.scheme() != DesktopScheme::untold ? desktop_.scheme() : toolkitScheme();
    const bool dark = appearance == AppModel::Appearance::system ? desktopIsDark(told, QGuiApplication::palette())
                                                                 : appearance == AppModel::Appearance::dark;
    show(dark ? ZelkTheme::dark() : ZelkTheme::light());
}

void Theme::show(const ZelkTheme& theme) {
    if (std::exchange(current_, &theme) != &theme) emit changed();
}

QColor Theme::otherFiles() const {
    return lookOf(FileType::other, *current_).color;
}

QString Theme::fixedFont() const {
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

QColor Theme::textOn(const QColor& color, const QColor& ground) const {
    return readable(color, ground, current_->ink);
}

bool Theme::eventFilter(QObject* watched, QEvent* event) {
    const bool desktopChanged =
        event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ThemeChange;
    if (desktopChanged) choose();
    return QObject::eventFilter(watched, event);
}

}  // namespace zelk

#include "moc_Theme.cpp"
