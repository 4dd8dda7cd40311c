// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

namespace zelk {

class DesktopSettings;

/// Whether the toolkit on this platform ("xcb", "wayland", ...) takes the desktop's text size into the scale of all
/// that it draws. On X11 it does: there the desktop tells it as a resolution of the screen.
bool toolkitScalesTexts(const QString& platformName);

/// How much larger than drawn a person wants to read, as QML reads it: one per engine. Every text of the house has its
/// size multiplied by it (Words and FigureText do so), and the layouts follow the texts. It starts with the desktop's
/// setting and follows it until somebody says otherwise. Main thread.
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
    /// Clamped to what the layouts bear. From now on the desktop is not asked any more.
    void setFactor(qreal factor);

signals:
    void factorChanged();

private:
    void apply(qreal factor);

    const DesktopSettings& desktop_;
    qreal factor_ = 1;
};

}  // namespace zelk
