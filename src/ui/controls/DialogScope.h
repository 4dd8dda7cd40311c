// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>
#include <QString>

namespace zelk {

/// The focus scope inside a dialog over the window. Reports the dialog as modal to screen readers, which QML cannot
/// express. The view sets the role. Main thread.
class DialogScope : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged REQUIRED FINAL)

public:
    explicit DialogScope(QQuickItem* parent = nullptr);

    /// The accessible name.
    const QString& title() const { return title_; }
    void setTitle(const QString& title);

signals:
    void titleChanged();

private:
    QString title_;
};

/// Registers the accessible interface of DialogScope with Qt. Call once per process.
void installDialogReading();

}  // namespace zelk
