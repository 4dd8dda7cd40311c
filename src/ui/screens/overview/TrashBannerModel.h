// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

namespace zelk {

class AppModel;
class Workspace;

/// What the Trash holds, told honestly: moving things there frees nothing until it is emptied, and a Trash that may not
/// be looked into is not an empty one. Main thread.
class TrashBannerModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SurveyScreenModel")
    Q_PROPERTY(bool shown READ shown NOTIFY changed FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(bool busy READ busy NOTIFY changed FINAL)
    Q_PROPERTY(QString figure READ figure NOTIFY changed FINAL)
    Q_PROPERTY(QString action READ action NOTIFY changed FINAL)
    Q_PROPERTY(QString actionName READ actionName NOTIFY changed FINAL)

public:
    /// With `showWhenEmpty` an empty Trash has its row too. `app` and `workspace` must outlive it.
    TrashBannerModel(AppModel& app, Workspace& workspace, bool showWhenEmpty, QObject* parent = nullptr);

    bool shown() const;
    QString subtitle() const;
    /// A spinner stands in the place of the figure.
    bool busy() const;
    /// Empty where it is not known.
    QString figure() const;
    /// The button's word; empty where there is none.
    QString action() const;
    /// The same for somebody who does not see what stands beside it.
    QString actionName() const;

public slots:
    /// The banner comes on screen.
    void appear();
    /// The button.
    void act();

signals:
    void changed();

private:
    AppModel& app_;
    Workspace& workspace_;
    bool showWhenEmpty_;
};

}  // namespace zelk
