// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>
#include <utility>

#include "ui/shell/MeetingPoint.h"

namespace zelk {

/// The activation as org.freedesktop.Application calls it "platform data".
QVariantMap platformDataOf(const Activation& activation);
Activation activationIn(const QVariantMap& platformData);

/// The interface org.freedesktop.Application, through which a desktop starts the application or has it come forward.
/// Main thread.
class ApplicationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// Until then calls are answered and do nothing: the window is about to be shown.
    void serve(MeetingPoint::Handler handler) { handler_ = std::move(handler); }

public slots:
    // Named as they are on the bus.

    /// Not answered if the application is ending. The bus tells the caller when it has ended.
    void Activate(const QVariantMap& platformData);
    /// Comes forward. The application has no documents: what is surveyed is chosen in its window.
    void Open(const QStringList& uris, const QVariantMap& platformData);
    /// An error, as the application declares no actions.
    void ActivateAction(const QString& name, const QVariantList& parameter, const QVariantMap& platformData);

private:
    MeetingPoint::Handler handler_;
};

}  // namespace zelk
