// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include "ui/charts/RibbonPicture.h"
#include "ui/screens/clutter/LargeFileRows.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

class AppModel;

/// A summary of a finished survey: the reclaimable bytes, the bytes by type, and where to continue. Keeps its values
/// while another survey runs. Main thread.
class FindingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of SurveyScreenModel")
    Q_PROPERTY(double recoverable READ recoverable NOTIFY changed FINAL)
    Q_PROPERTY(QString line READ line NOTIFY changed FINAL)
    Q_PROPERTY(QString unreadLine READ unreadLine NOTIFY changed FINAL)
    Q_PROPERTY(bool reviewable READ reviewable NOTIFY changed FINAL)
    Q_PROPERTY(QList<zelk::RibbonSegment> segments READ segments NOTIFY changed FINAL)
    Q_PROPERTY(double freeBytes READ freeBytes NOTIFY changed FINAL)
    Q_PROPERTY(QList<zelk::ScreenLook> cards READ cards CONSTANT FINAL)
    Q_PROPERTY(QList<qreal> cardBytes READ cardBytes NOTIFY changed FINAL)
    Q_PROPERTY(QStringList cardDetails READ cardDetails NOTIFY changed FINAL)
    Q_PROPERTY(zelk::LargeFileRows* largest READ largest CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit FindingsModel(AppModel& app, QObject* parent = nullptr);

    /// The reclaimable bytes.
    qint64 recoverable() const { return recoverable_; }
    const QString& line() const { return line_; }
    /// How many folders could not be read, lest unknown space be taken for clean; empty if there are none.
    const QString& unreadLine() const { return unreadLine_; }
    /// Whether there is anything to review.
    bool reviewable() const { return recoverable_ >= 1; }
    /// By type, largest first.
    const QList<RibbonSegment>& segments() const { return segments_; }
    qint64 freeBytes() const { return freeBytes_; }
    /// The cards that lead on, to Reclaim, Clutter, the downloads and System, with their figures and lines.
    const QList<ScreenLook>& cards() const { return cards_; }
    const QList<qreal>& cardBytes() const { return cardBytes_; }
    const QStringList& cardDetails() const { return cardDetails_; }
    /// The first few of the large files.
    LargeFileRows* largest() { return &largest_; }

public slots:
    void review();
    void seeAll();
    /// Opens the module of a card.
    void openCard(int card);

signals:
    void changed();

private:
    void refresh();
    void headline();
    QList<RibbonSegment> readSegments() const;

    AppModel& app_;
    const QList<ScreenLook> cards_;
    LargeFileRows largest_;
    qint64 recoverable_ = 0;
    QString line_;
    QString unreadLine_;
    QList<RibbonSegment> segments_;
    qint64 freeBytes_ = 0;
    QList<qreal> cardBytes_;
    QStringList cardDetails_;
};

}  // namespace zelk
