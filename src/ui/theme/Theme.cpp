// SPDX-License-Identifier: MIT
#include "ui/theme/Theme.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QStyleHints>

#include "state/AppModel.h"

namespace zelk {

namespace {

bool desktopIsDark() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown) return scheme == Qt::ColorScheme::Dark;
#endif
    // An older Qt tells no scheme, but its palette follows the desktop's: dark is where the text is the lighter.
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

}  // namespace

Theme::Theme(QObject* parent) : QObject(parent) {
    // The palette has no signal of its own that outlives Qt 6.0; the application gets an event.
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
    const bool dark =
        appearance == AppModel::Appearance::dark || (appearance == AppModel::Appearance::system && desktopIsDark());
    const ZelkTheme* chosen = dark ? &ZelkTheme::dark() : &ZelkTheme::light();
    if (chosen == current_) return;
    current_ = chosen;
    emit changed();
}

bool Theme::eventFilter(QObject* watched, QEvent* event) {
    const bool desktopChanged =
        event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ThemeChange;
    if (desktopChanged) choose();
    return QObject::eventFilter(watched, event);
}

}  // namespace zelk
