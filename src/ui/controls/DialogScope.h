// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>
#include <QString>

namespace zelk {

/// The inside of a dialog over a window: it keeps the keyboard, and a screen reader takes it for modal, which QML has
/// no word for. Its view gives it the role of a dialog. Main thread.
class DialogScope : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged REQUIRED FINAL)

public:
    explicit DialogScope(QQuickItem* parent = nullptr);

    /// The name of the dialog.
    const QString& title() const { return title_; }
    void setTitle(const QString& title);

signals:
    void titleChanged();

private:
    QString title_;
};

/// Tells Qt how a DialogScope is read. Once is enough.
void installDialogReading();

}  // namespace zelk
