// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QString>

#include "platform/Vitals.h"
#include "ui/shell/BundleInfo.h"

namespace zelk {

/// A line of the About window.
struct AboutRow {
    Q_GADGET
    QML_VALUE_TYPE(aboutRow)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)

public:
    QString label;
    QString value;

    bool operator==(const AboutRow&) const = default;
};

/// The contents of the About window: the name, and rows of labels and values. Main thread.
class AboutModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(QList<zelk::AboutRow> rows READ rows CONSTANT FINAL)

public:
    AboutModel(const BundleInfo& bundle, const DeviceInfo& device);

    const QString& name() const { return name_; }
    const QList<AboutRow>& rows() const { return rows_; }

private:
    QString name_;
    QList<AboutRow> rows_;
};

}  // namespace zelk
