// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <vector>

#include "state/Screen.h"
#include "ui/charts/RibbonPicture.h"
#include "ui/controls/RowModel.h"
#include "ui/screens/clutter/LargeFileRows.h"

namespace zelk {

class AppModel;

/// List model of the finding cards, one per module that continues from a survey. Always the same cards in the same
/// order. Main thread.
class FindingCards : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of FindingsModel")

public:
    struct Card {
        QString symbol;
        QString title;
        qint64 value;  ///< bytes
        QString detail;
        QColor tint;
        Screen screen;

        bool operator==(const Card&) const = default;
    };

    enum Role { symbolRole = Qt::UserRole, titleRole, valueRole, detailRole, tintRole };

    /// `app` must outlive it.
    explicit FindingCards(AppModel& app, QObject* parent = nullptr);

    /// Updates all values from the AppModel.
    void refresh();
    const std::vector<Card>& cards() const { return cards_; }

public slots:
    /// Opens the card's module.
    void press(int row);

private:
    std::size_t size() const override { return cards_.size(); }
    QVariant value(std::size_t row, int role) const override;

    AppModel& app_;
    std::vector<Card> cards_;
};

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
    Q_PROPERTY(zelk::FindingCards* cards READ cards CONSTANT FINAL)
    Q_PROPERTY(zelk::LargeFileRows* largest READ largest CONSTANT FINAL)

public:
    /// `app` must outlive it.
    explicit FindingsModel(AppModel& app, QObject* parent = nullptr);

    void setTheme(const ZelkTheme& theme);

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
    FindingCards* cards() { return &cards_; }
    /// The first few of the large files.
    LargeFileRows* largest() { return &largest_; }

public slots:
    void review();
    void seeAll();

signals:
    void changed();

private:
    void refresh();
    void headline();
    QList<RibbonSegment> readSegments() const;

    AppModel& app_;
    const ZelkTheme* theme_ = &ZelkTheme::dark();
    FindingCards cards_;
    LargeFileRows largest_;
    qint64 recoverable_ = 0;
    QString line_;
    QString unreadLine_;
    QList<RibbonSegment> segments_;
    qint64 freeBytes_ = 0;
};

}  // namespace zelk
