// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QObject>
#include <QString>

#include "ui/screens/overview/ChangesModel.h"

namespace zelk {

class AppModel;

/// The changes of the drive between surveys. Shown from the second record on. Main thread.
class TrendsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SurveyScreenModel")
    Q_PROPERTY(bool shown READ shown NOTIFY changed FINAL)
    Q_PROPERTY(QString arrow READ arrow NOTIFY changed FINAL)
    Q_PROPERTY(QColor arrowColor READ arrowColor NOTIFY changed FINAL)
    Q_PROPERTY(QString arrowName READ arrowName NOTIFY changed FINAL)
    Q_PROPERTY(double delta READ delta NOTIFY changed FINAL)
    Q_PROPERTY(QString deltaLine READ deltaLine NOTIFY changed FINAL)
    Q_PROPERTY(QList<qreal> totals READ totals NOTIFY changed FINAL)
    Q_PROPERTY(QString forecast READ forecast NOTIFY changed FINAL)
    Q_PROPERTY(QColor forecastColor READ forecastColor NOTIFY changed FINAL)
    Q_PROPERTY(bool hasChanges READ hasChanges NOTIFY changed FINAL)
    Q_PROPERTY(bool showChanges READ showChanges NOTIFY showChangesChanged FINAL)
    Q_PROPERTY(zelk::ChangesModel* changes READ changes CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit TrendsModel(AppModel& app, QObject* parent = nullptr);

    void setTheme(const ZelkTheme& theme);

    bool shown() const { return shown_; }
    QString arrow() const;
    QColor arrowColor() const;
    /// The accessible name of the arrow.
    QString arrowName() const;
    /// By how many bytes the last two totals differ.
    qint64 delta() const { return delta_ < 0 ? -delta_ : delta_; }
    QString deltaLine() const;
    /// Bytes, oldest first.
    const QList<qreal>& totals() const { return totals_; }
    /// Empty if there is none.
    const QString& forecast() const { return forecast_; }
    QColor forecastColor() const;
    bool hasChanges() const { return hasChanges_; }
    /// Whether the sheet of changes is open.
    bool showChanges() const { return showChanges_; }
    ChangesModel* changes() { return &changes_; }

public slots:
    void openChanges();
    void closeChanges();

signals:
    void changed();
    void showChangesChanged();

private:
    void refresh();
    void setShowChanges(bool show);

    AppModel& app_;
    const ZelkTheme* theme_ = &ZelkTheme::dark();
    ChangesModel changes_;
    bool shown_ = false;
    qint64 delta_ = 0;  // with its sign
    qsizetype tracked_ = 0;
    QList<qreal> totals_;
    QString forecast_;
    bool forecastIsFar_ = false;
    bool hasChanges_ = false;
    bool showChanges_ = false;
};

}  // namespace zelk
