// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QColor>
#include <QString>
#include <vector>

#include "state/Screen.h"

namespace zelk {

class AppModel;

/// All that the screen of the tools says: a constant list of what the application can do, each row of which leads to
/// its module. Main thread.
class ToolsScreenModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)
    Q_PROPERTY(QColor tint READ tint CONSTANT FINAL)
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT FINAL)

public:
    struct Tool {
        Screen screen;
        QString detail;
        QString cleanup;  ///< empty where the tool takes nothing away
    };

    enum Role { symbolRole = Qt::UserRole, tintRole, titleRole, detailRole, cleanupRole, cleansRole, spokenRole };

    /// `app` must outlive it.
    explicit ToolsScreenModel(AppModel& app);

    static const std::vector<Tool>& tools();

    QString symbol() const;
    QColor tint() const;
    QString title() const;
    QString subtitle() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

public slots:
    /// Goes to the module of a row.
    void press(int row);

private:
    AppModel& app_;
};

}  // namespace zelk
