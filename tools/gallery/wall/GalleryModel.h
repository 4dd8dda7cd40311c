// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>

#include "ui/charts/BubbleModel.h"
#include "ui/charts/RibbonPicture.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/screens/overview/SurveyScreenModel.h"

namespace zelk {

/// Sample data for the controls of the gallery.
class GalleryModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString longText READ longText CONSTANT FINAL)
    Q_PROPERTY(zelk::DeviceFace device READ device CONSTANT FINAL)
    Q_PROPERTY(zelk::DeviceFace longDevice READ longDevice CONSTANT FINAL)
    Q_PROPERTY(zelk::DeviceFace bareDevice READ bareDevice CONSTANT FINAL)
    Q_PROPERTY(QList<zelk::RibbonSegment> segments READ segments CONSTANT FINAL)
    Q_PROPERTY(double freeBytes READ freeBytes CONSTANT FINAL)
    Q_PROPERTY(QList<qreal> history READ history CONSTANT FINAL)
    Q_PROPERTY(zelk::BubbleModel* bubbles READ bubbles CONSTANT FINAL)
    Q_PROPERTY(zelk::BubbleModel* plainBubbles READ plainBubbles CONSTANT FINAL)
    Q_PROPERTY(zelk::BubbleModel* noBubbles READ noBubbles CONSTANT FINAL)
    Q_PROPERTY(zelk::ModuleScreenModel* module READ module CONSTANT FINAL)

public:
    explicit GalleryModel(QObject* parent = nullptr);

    BubbleModel* bubbles() { return &bubbles_; }
    /// The same without icons.
    BubbleModel* plainBubbles() { return &plainBubbles_; }
    BubbleModel* noBubbles() { return &noBubbles_; }
    /// As long as the longest realistic names.
    QString longText() const;
    DeviceFace device() const;
    DeviceFace longDevice() const;
    /// Without information about the drive.
    DeviceFace bareDevice() const;
    ModuleScreenModel* module() { return &module_; }
    QList<RibbonSegment> segments() const;
    qint64 freeBytes() const { return 212'400'000'000; }
    QList<qreal> history() const { return {3, 5, 4, 7, 7.5, 10, 9, 12, 15, 14.5, 17, 19, 18.5, 22}; }

private:
    static void toggle(BubbleModel& model, const std::string& id);

    BubbleModel bubbles_;
    BubbleModel plainBubbles_;
    BubbleModel noBubbles_{{}};
    ModuleScreenModel module_;
};

}  // namespace zelk
