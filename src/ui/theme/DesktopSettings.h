// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariant>
#include <optional>

#ifdef Q_OS_LINUX
Q_MOC_INCLUDE(<QDBusVariant>)
class QDBusConnection;
class QDBusVariant;
#endif

namespace zelk {

/// The colour scheme that the desktop prefers; `untold` if it states none.
enum class DesktopScheme { untold, light, dark };

/// The name of a setting in the desktop portal.
struct DesktopKey {
    QString nameSpace;
    QString key;

    bool operator==(const DesktopKey&) const = default;
};

/// Interprets a value from the portal; absent for another setting or an unexpected type. "enable-animations" is the
/// older setting, with the opposite meaning of "reduced-motion".
std::optional<bool> reducedMotionFrom(const DesktopKey& key, const QVariant& value);
std::optional<DesktopScheme> schemeFrom(const DesktopKey& key, const QVariant& value);
/// The factor by which to scale texts; 1 is their design size.
std::optional<double> textFactorFrom(const DesktopKey& key, const QVariant& value);

/// Preferences of the desktop that Qt does not expose. On Linux they come from the desktop portal, which is queried and
/// observed asynchronously. On macOS only reduced motion is read, once, from the accessibility settings: Qt reports the
/// colour scheme, and there is no system-wide text size. Defaults: motion, the palette's scheme, unscaled texts. Main
/// thread.
class DesktopSettings : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The instance of the application, created and started by the first call and destroyed with the application.
    static const DesktopSettings& ofApplication();

    void start();
#ifdef Q_OS_LINUX
    /// Queries the settings on this bus and subscribes to their changes.
    void follow(QDBusConnection& bus);
#endif

    bool reducedMotion() const {
        return withoutAnimations_ || reducedMotion_;
    }
    DesktopScheme scheme() const {
        return scheme_;
    }
    double textFactor() const {
        return textFactor_;
    }

    /// Applies a setting that the portal reported. Unknown settings are ignored.
    void hear(const DesktopKey& key, const QVariant& value);

signals:
    void reducedMotionChanged();
    void schemeChanged();
    void textFactorChanged();

private:
    // Independent settings with the same effect: either is enough.
    bool withoutAnimations_ = false;
    bool reducedMotion_ = false;
    DesktopScheme scheme_ = DesktopScheme::untold;
    double textFactor_ = 1;

#ifdef Q_OS_LINUX
private slots:
    void settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value);

private:
    void ask(const QDBusConnection& bus, const DesktopKey& key);
#endif
};

}  // namespace zelk
