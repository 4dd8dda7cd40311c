// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace zelk {

class DesktopSettings;

/// Whether Qt's platform plugin ("xcb", "wayland", ...) already applies the desktop's text size to its scale factor.
/// X11 does: the desktop sets the text size through the screen's resolution.
bool toolkitScalesTexts(const QString& platformName);

/// The user's text size as a factor, one instance per QML engine. Label and NumberItem multiply their font size by it,
/// and layouts follow the text. Follows the desktop's setting until setFactor() is called. Main thread.
class TextScale : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(qreal factor READ factor WRITE setFactor NOTIFY factorChanged FINAL)

public:
    static constexpr qreal smallest = 1;
    static constexpr qreal largest = 2;

    explicit TextScale(QObject* parent = nullptr);
    /// `desktop` must outlive it.
    explicit TextScale(const DesktopSettings& desktop, QObject* parent = nullptr);

    qreal factor() const { return factor_; }
    /// Overrides the desktop's setting from now on. Clamped to `smallest` and `largest`, the range that layouts
    /// support.
    void setFactor(qreal factor);

signals:
    void factorChanged();

private:
    void apply(qreal factor);

    const DesktopSettings& desktop_;
    qreal factor_ = 1;
};

}  // namespace zelk
