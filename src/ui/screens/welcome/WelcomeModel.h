// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QColor>
#include <QEasingCurve>
#include <QString>
#include <vector>

namespace zelk {

/// The pages that introduce the application in its first run, and which of them is shown. Main thread.
class WelcomeModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of FirstRunModel")
    Q_PROPERTY(int page READ page NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool backShown READ backShown NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool skipShown READ skipShown NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString skipLabel READ skipLabel CONSTANT FINAL)
    Q_PROPERTY(QString backLabel READ backLabel CONSTANT FINAL)
    Q_PROPERTY(QString primaryLabel READ primaryLabel NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY pageChanged FINAL)
    Q_PROPERTY(int turnTime READ turnTime CONSTANT FINAL)
    Q_PROPERTY(QEasingCurve turnEasing READ turnEasing CONSTANT FINAL)
    Q_PROPERTY(QString position READ position NOTIFY pageChanged FINAL)

public:
    struct Page {
        QString symbol;
        QColor color;
        QString title;
        QString body;
    };

    enum Role { symbolRole = Qt::UserRole, tintRole, titleRole, bodyRole, currentRole };

    using QAbstractListModel::QAbstractListModel;

    static const std::vector<Page>& pages();

    int page() const { return page_; }
    bool backShown() const { return page_ > 0; }
    bool skipShown() const { return !onLastPage(); }
    QString skipLabel() const;
    QString backLabel() const;
    QString primaryLabel() const;
    /// Of the current page.
    QString title() const;
    /// "Page 1 of 4", which the dots say to the eye.
    QString position() const;
    /// Milliseconds, and the course, of the way from one page to the next: a spring without overshoot.
    int turnTime() const;
    QEasingCurve turnEasing() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

public slots:
    /// To the page after this one; nothing on the last.
    void next();
    /// To the page before this one; nothing on the first.
    void back();
    /// The primary button: the next page, and behind the last one the end.
    void pressPrimary();
    /// The end, from any page.
    void skip() { emit finished(); }

signals:
    void pageChanged();
    void finished();

private:
    bool onLastPage() const { return page_ + 1 == rowCount(); }
    void show(int page);

    int page_ = 0;
};

}  // namespace zelk
