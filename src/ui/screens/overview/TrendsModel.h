// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QString>
#include <vector>

#include "state/SurveyRecord.h"
#include "ui/controls/RowModel.h"

namespace zelk {

class AppModel;

/// List model of the folders that grew, appeared or vanished between the last two surveys, in three sections. Empty
/// sections are left out. Main thread.
class ChangesModel : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of TrendsModel")
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)

public:
    enum Kind { Grew, Appeared, Vanished };
    Q_ENUM(Kind)
    /// Only the first row of a section has a heading.
    enum Role { headingRole = Qt::UserRole, kindRole, nameRole, pathRole, sizeRole };

    explicit ChangesModel(QObject* parent = nullptr);

    void show(const FolderChanges& changes);

    bool empty() const { return rows_.empty(); }

signals:
    void emptyChanged();

private:
    struct Row {
        Kind kind;
        FolderChange change;
        QString heading;
    };

    void add(Kind kind, const std::vector<FolderChange>& changes, const QString& heading);
    static QString sizeText(const Row& row);

    std::vector<Row> rows_;
};

/// The changes of the drive between surveys. Shown from the second record on. Main thread.
class TrendsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SurveyScreenModel")
    Q_PROPERTY(bool shown READ shown NOTIFY changed FINAL)
    Q_PROPERTY(bool grew READ grew NOTIFY changed FINAL)
    Q_PROPERTY(QString arrowName READ arrowName NOTIFY changed FINAL)
    Q_PROPERTY(double delta READ delta NOTIFY changed FINAL)
    Q_PROPERTY(QString deltaLine READ deltaLine NOTIFY changed FINAL)
    Q_PROPERTY(QList<qreal> totals READ totals NOTIFY changed FINAL)
    Q_PROPERTY(QString forecast READ forecast NOTIFY changed FINAL)
    Q_PROPERTY(bool alarming READ alarming NOTIFY changed FINAL)
    Q_PROPERTY(bool hasChanges READ hasChanges NOTIFY changed FINAL)
    Q_PROPERTY(bool showChanges READ showChanges NOTIFY showChangesChanged FINAL)
    Q_PROPERTY(zelk::ChangesModel* changes READ changes CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit TrendsModel(AppModel& app, QObject* parent = nullptr);

    bool shown() const { return shown_; }
    bool grew() const { return delta_ > 0; }
    /// The accessible name of the arrow.
    QString arrowName() const;
    /// By how many bytes the last two totals differ.
    qint64 delta() const { return delta_ < 0 ? -delta_ : delta_; }
    QString deltaLine() const;
    /// Bytes, oldest first.
    const QList<qreal>& totals() const { return totals_; }
    /// Empty if there is none.
    const QString& forecast() const { return forecast_; }
    /// Whether the forecast is near.
    bool alarming() const { return alarming_; }
    bool hasChanges() const { return hasChanges_; }
    /// Whether the sheet of changes is open.
    bool showChanges() const { return showChanges_; }
    ChangesModel* changes() { return &changes_; }

public slots:
    void openChanges() { setShowChanges(hasChanges_); }
    void closeChanges() { setShowChanges(false); }

signals:
    void changed();
    void showChangesChanged();

private:
    void refresh();
    void setShowChanges(bool show);

    AppModel& app_;
    ChangesModel changes_;
    bool shown_ = false;
    qint64 delta_ = 0;  // with its sign
    QList<qreal> totals_;
    QString forecast_;
    bool alarming_ = false;
    bool hasChanges_ = false;
    bool showChanges_ = false;
};

}  // namespace zelk
