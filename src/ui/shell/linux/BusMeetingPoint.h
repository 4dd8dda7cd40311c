// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <functional>
#include <optional>

#include "ui/shell/linux/ApplicationService.h"

namespace zelk {

/// The session bus. Whoever holds it owns the application's name there, and answers to org.freedesktop.Application.
class BusMeetingPoint : public MeetingPoint {
public:
    /// `connect` must give a connection of its own: everything on the shared one waits until an application object
    /// exists. `patience`, in milliseconds, is how long the holder may take to answer.
    explicit BusMeetingPoint(std::function<QDBusConnection()> connect = connectToSessionBus, int patience = 5000);
    ~BusMeetingPoint() override;

    Claim claim() override;
    Answer call(const Activation& by) override;
    void serve(Handler handler) override { service_.serve(std::move(handler)); }
    void announce() override;

private:
    static QDBusConnection connectToSessionBus();
    QVariant askBus(const QString& method, const QVariantList& arguments) const;
    QString ownerOf(const QString& name) const;

    std::function<QDBusConnection()> connect_;
    int patience_;
    ApplicationService service_;
    std::optional<QDBusConnection> bus_;  // none before the first claim
};

}  // namespace zelk
