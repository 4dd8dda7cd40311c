// SPDX-License-Identifier: MIT
#include "ui/shell/linux/ApplicationService.h"

#include <QDBusError>

namespace zelk {

namespace {

const QString tokenKey = QStringLiteral("activation-token");
const QString startupKey = QStringLiteral("desktop-startup-id");

}  // namespace

QVariantMap platformDataOf(const Activation& activation) {
    QVariantMap data;
    if (!activation.token.isEmpty()) data.insert(tokenKey, activation.token);
    if (!activation.startupId.isEmpty()) data.insert(startupKey, activation.startupId);
    return data;
}

Activation activationIn(const QVariantMap& platformData) {
    return {platformData.value(tokenKey).toString(), platformData.value(startupKey).toString()};
}

void ApplicationService::Activate(const QVariantMap& platformData) {
    if (handler_ && !handler_(activationIn(platformData))) setDelayedReply(true);
}

void ApplicationService::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void ApplicationService::ActivateAction(const QString& name, const QVariantList&, const QVariantMap&) {
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("Zelk has no action “%1”.").arg(name));
}

}  // namespace zelk

#include "moc_ApplicationService.cpp"
