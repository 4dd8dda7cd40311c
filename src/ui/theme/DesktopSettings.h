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

/// What a desktop says of its colours; one may say nothing.
enum class DesktopScheme { untold, light, dark };

/// A setting as the desktop portal names it.
struct DesktopKey {
    QString nameSpace;
    QString key;

    bool operator==(const DesktopKey&) const = default;
};

/// What a value of the portal means; other settings and other types mean nothing. "enable-animations" is the older
/// setting of motion and says the opposite of "reduced-motion".
std::optional<bool> reducedMotionFrom(const DesktopKey& key, const QVariant& value);
std::optional<DesktopScheme> schemeFrom(const DesktopKey& key, const QVariant& value);
/// How much larger texts are wanted: 1 is as drawn.
std::optional<double> textFactorFrom(const DesktopKey& key, const QVariant& value);

/// The person's wishes for the whole desktop that Qt does not tell. On Linux they come from the desktop portal, which
/// is asked and listened to but never waited for; on macOS the one of motion from the accessibility settings, read
/// once, while colours come by Qt and the size of texts is every application's own. A desktop that says nothing wants
/// motion, its palette, and texts as they are drawn. Main thread.
class DesktopSettings : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Those of the application: made and asked for at the first call, and gone with the application.
    static const DesktopSettings& ofApplication();

    void start();
#ifdef Q_OS_LINUX
    /// Asks the portal on this bus, and from now on hears of every change.
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

    /// A setting of the portal has this value.
    void hear(const DesktopKey& key, const QVariant& value);

signals:
    void reducedMotionChanged();
    void schemeChanged();
    void textFactorChanged();

private:
    // Independent wishes for the same: either is enough.
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
