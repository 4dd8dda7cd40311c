// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QString>

#include "state/Screen.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

class AppModel;

/// A feature of the application, and the module it belongs to.
struct Tool {
    Q_GADGET
    QML_VALUE_TYPE(toolFace)
    Q_PROPERTY(zelk::ScreenLook look READ look FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(QString cleanup MEMBER cleanup FINAL)
    Q_PROPERTY(QString spoken READ spoken FINAL)

public:
    Screen screen{};
    QString detail;
    QString cleanup;  ///< empty if the tool removes nothing

    const ScreenLook& look() const { return lookOf(screen); }
    /// The accessible name of the row.
    QString spoken() const;

    bool operator==(const Tool&) const = default;
};

/// The fixed list of features; each row opens its module. Main thread.
class ToolsScreenModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(zelk::ScreenLook look READ look CONSTANT FINAL)
    Q_PROPERTY(QList<zelk::Tool> tools READ tools CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit ToolsScreenModel(AppModel& app);

    const ScreenLook& look() const { return lookOf(Screen::tools); }
    const QList<Tool>& tools() const { return tools_; }

public slots:
    /// Opens the module of a row.
    void press(int row);

private:
    AppModel& app_;
    const QList<Tool> tools_;
};

}  // namespace zelk
