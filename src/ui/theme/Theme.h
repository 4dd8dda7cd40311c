// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QString>

#include "ui/theme/DesktopSettings.h"
#include "ui/theme/SafetyLook.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

class AppModel;

/// Without a scheme, decides by the palette, which still follows the desktop: dark if text is lighter than the window.
bool desktopIsDark(DesktopScheme scheme, const QPalette& palette);

/// The current theme, one instance per QML engine. Switches between the two fixed themes when the model's appearance
/// changes, or the desktop's if the model follows the system. Main thread.
class Theme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed FINAL)
    Q_PROPERTY(QColor ground READ ground NOTIFY changed FINAL)
    Q_PROPERTY(QColor groundHi READ groundHi NOTIFY changed FINAL)
    Q_PROPERTY(QColor surface READ surface NOTIFY changed FINAL)
    Q_PROPERTY(QColor surfaceHi READ surfaceHi NOTIFY changed FINAL)
    Q_PROPERTY(QColor ink READ ink NOTIFY changed FINAL)
    Q_PROPERTY(QColor inkSoft READ inkSoft NOTIFY changed FINAL)
    Q_PROPERTY(QColor hairline READ hairline NOTIFY changed FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed FINAL)
    Q_PROPERTY(QColor accentSoft READ accentSoft NOTIFY changed FINAL)
    Q_PROPERTY(QColor alert READ alert NOTIFY changed FINAL)
    Q_PROPERTY(QColor accentInk READ accentInk CONSTANT FINAL)
    Q_PROPERTY(QColor gradeSafe READ gradeSafe CONSTANT FINAL)
    Q_PROPERTY(QColor gradeRegenerates READ gradeRegenerates CONSTANT FINAL)
    Q_PROPERTY(QColor gradeReview READ gradeReview CONSTANT FINAL)
    Q_PROPERTY(QColor accentText READ accentText NOTIFY changed FINAL)
    Q_PROPERTY(QColor alertText READ alertText NOTIFY changed FINAL)
    Q_PROPERTY(QColor otherFiles READ otherFiles NOTIFY changed FINAL)
    Q_PROPERTY(QColor textGround READ textGround NOTIFY changed FINAL)
    Q_PROPERTY(QColor hoverWash READ hoverWash NOTIFY changed FINAL)
    Q_PROPERTY(QColor pressWash READ pressWash NOTIFY changed FINAL)
    Q_PROPERTY(QString fixedFont READ fixedFont CONSTANT FINAL)
    Q_PROPERTY(int pageMargin READ pageMargin CONSTANT FINAL)
    Q_PROPERTY(int pageWidth READ pageWidth CONSTANT FINAL)

public:
    explicit Theme(QObject* parent = nullptr);
    /// `desktop` must outlive it.
    explicit Theme(const DesktopSettings& desktop, QObject* parent = nullptr);

    /// Follows the appearance of `model` from now on. Before that the theme is dark; after the model's end it stays as
    /// it was.
    void follow(AppModel& model);

    /// Sets the theme directly, in programs without a model.
    void show(const ZelkTheme& theme);

    const ZelkTheme& current() const { return *current_; }

    bool isDark() const { return current_->isDark; }
    QColor ground() const { return current_->ground; }
    QColor groundHi() const { return current_->groundHi; }
    QColor surface() const { return current_->surface; }
    QColor surfaceHi() const { return current_->surfaceHi; }
    QColor ink() const { return current_->ink; }
    QColor inkSoft() const { return current_->inkSoft; }
    QColor hairline() const { return current_->hairline; }
    QColor accent() const { return current_->accent; }
    QColor accentSoft() const { return current_->accentSoft; }
    QColor alert() const { return current_->alert; }
    QColor accentInk() const { return AccentGradient::ink(); }
    /// The colours of the safety grades.
    QColor gradeSafe() const { return colorOf(ReclaimSafety::safe); }
    QColor gradeRegenerates() const { return colorOf(ReclaimSafety::regenerates); }
    QColor gradeReview() const { return colorOf(ReclaimSafety::review); }
    /// The accent and alert colours adjusted for text, readable on every background of the theme.
    QColor accentText() const { return textOn(current_->accent, textGround()); }
    QColor alertText() const { return textOn(current_->alert, textGround()); }
    /// The colour of files of no known type, which have none of their own.
    QColor otherFiles() const;
    /// The background with the least contrast to coloured text: the darkest of the light theme, the lightest of the
    /// dark one. Text that is readable on it is readable on all of them.
    QColor textGround() const { return current_->isDark ? current_->surfaceHi : current_->ground; }
    /// Overlays for hovered and pressed items.
    QColor hoverWash() const { return withOpacity(current_->ink, 0.07); }
    QColor pressWash() const { return withOpacity(current_->ink, 0.13); }
    /// The system's monospaced family, for columns of numbers.
    QString fixedFont() const;
    /// Points from the sides of a screen to its content: the left line of all screens. Only the overview is centred
    /// where it could be wider.
    static int pageMargin() { return 26; }
    /// The greatest width of a column of rows or cards in points. In wider windows lines would be too long to follow.
    static int pageWidth() { return 1100; }
    /// Adjusts a colour for small text on `ground` by moving it towards the ink until it is readable there. A binding
    /// that passes a background of the theme is evaluated again when the theme changes.
    Q_INVOKABLE QColor textOn(const QColor& color, const QColor& ground) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void changed();

private:
    void choose();

    const DesktopSettings& desktop_;
    QPointer<AppModel> model_;
    const ZelkTheme* current_ = &ZelkTheme::dark();
};

}  // namespace zelk
