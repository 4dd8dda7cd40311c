// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariant>
#include <optional>

#ifdef Q_OS_LINUX
Q_MOC_INCLUDE(<QDBusVariant>)
class QDBusVariant;
#endif

namespace zelk {

/// The desktop's wish for reduced motion, which Qt does not tell. On Linux it comes from the desktop portal, without
/// waiting for it; on macOS from the accessibility settings, read once. A desktop that says nothing wants motion.
class DesktopMotion : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    void start();

    /// What a setting of the portal means; absent settings and other types mean nothing. "enable-animations" is the
    /// older setting and says the opposite of "reduced-motion".
    static std::optional<bool> reducedFrom(const QString& nameSpace, const QString& key, const QVariant& value);

    /// A setting of the portal has this value. The two are independent wishes for the same: either is enough.
    void hear(const QString& nameSpace, const QString& key, const QVariant& value);

signals:
    void reducedChanged(bool reduced);

private:
    bool withoutAnimations_ = false;
    bool reducedMotion_ = false;
    bool reduced_ = false;

#ifdef Q_OS_LINUX
private slots:
    void settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value);

private:
    void ask(const QString& nameSpace, const QString& key);
#endif
};

}  // namespace zelk
