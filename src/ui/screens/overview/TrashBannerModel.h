// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace zelk {

class AppModel;

/// The state of the Trash: moving items there frees no space until it is emptied, and an unreadable Trash is shown as
/// such, not as empty. Main thread.
class TrashBannerModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SurveyScreenModel")
    Q_PROPERTY(bool shown READ shown NOTIFY changed FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(bool busy READ busy NOTIFY changed FINAL)
    Q_PROPERTY(bool known READ known NOTIFY changed FINAL)
    Q_PROPERTY(double bytes READ bytes NOTIFY changed FINAL)
    Q_PROPERTY(QString action READ action NOTIFY changed FINAL)
    Q_PROPERTY(QString actionName READ actionName NOTIFY changed FINAL)

public:
    /// With `showWhenEmpty` the banner is shown even for an empty Trash. `app` must outlive it.
    TrashBannerModel(AppModel& app, bool showWhenEmpty, QObject* parent = nullptr);

    bool shown() const;
    QString subtitle() const;
    /// Whether to show a spinner instead of the size.
    bool busy() const;
    /// Whether bytes() is the current size of the Trash.
    bool known() const;
    qint64 bytes() const;
    /// The button's label; empty if there is no button.
    QString action() const;
    /// The button's accessible name, which makes sense without the text beside it.
    QString actionName() const;

public slots:
    /// Call when the banner becomes visible: reads the Trash again.
    void appear();
    /// Runs the button's action.
    void act();

signals:
    void changed();

private:
    AppModel& app_;
    bool showWhenEmpty_;
};

}  // namespace zelk
