// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QCoreApplication>
#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <optional>

#include "platform/Vitals.h"
#include "ui/screens/overview/FindingsModel.h"
#include "ui/screens/overview/TrashBannerModel.h"
#include "ui/screens/overview/TrendsModel.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

class AppModel;

/// Texts about the computer and its drive.
struct DeviceFace {
    Q_GADGET
    QML_VALUE_TYPE(deviceFace)
    Q_DECLARE_TR_FUNCTIONS(DeviceFace)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString detail MEMBER detail CONSTANT FINAL)
    Q_PROPERTY(double freeBytes MEMBER freeBytes CONSTANT FINAL)
    Q_PROPERTY(QString totalText MEMBER totalText CONSTANT FINAL)

public:
    QString name;
    QString detail;        ///< the known ones of chip, cores, memory and system
    double freeBytes = 0;  ///< of the drive
    QString totalText;     ///< empty if the drive is unknown

    static DeviceFace of(const DeviceInfo& device, const std::optional<VolumeInfo>& volume,
                         const QLocale& locale = userLocale());

    bool operator==(const DeviceFace&) const = default;
};

/// The figures of the survey screen. Owns no data: everything is read from the AppModel. A survey reports far more
/// often than anyone can read, so its figures change at most a dozen times a second. Main thread.
class SurveyScreenModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool idle READ idle NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool scanning READ scanning NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool finished READ finished NOTIFY phaseChanged FINAL)
    Q_PROPERTY(double items READ items NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString itemsPhrase READ itemsPhrase NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double scanned READ scanned NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double recoverable READ recoverable NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString buttonName READ buttonName NOTIFY buttonNameChanged FINAL)
    Q_PROPERTY(QString spokenProgress READ spokenProgress NOTIFY spokenProgressChanged FINAL)
    Q_PROPERTY(QString pathLine READ pathLine NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QList<zelk::ScreenLook> features READ features CONSTANT FINAL)
    Q_PROPERTY(zelk::DeviceFace device READ device NOTIFY deviceChanged FINAL)
    Q_PROPERTY(zelk::FindingsModel* findings READ findings CONSTANT FINAL)
    Q_PROPERTY(zelk::TrashBannerModel* trash READ trash CONSTANT FINAL)
    Q_PROPERTY(zelk::TrendsModel* trends READ trends CONSTANT FINAL)

public:
    /// `app` must outlive it. `now` is a steady clock in seconds, by which a screen reader is told of progress.
    explicit SurveyScreenModel(AppModel& app, std::function<double()> now = steadySeconds);

    bool idle() const;
    bool scanning() const;
    bool finished() const;

    /// Items and bytes of the running survey, else of the last one; a new survey starts at 0.
    qint64 items() const { return items_; }
    /// The words around that number, which stands in the place of "%1", in the plural form for it.
    QString itemsPhrase() const;
    qint64 scanned() const { return scanned_; }
    /// The reclaimable bytes of the last survey. 0 at the moment the phase changes to finished, so that the number
    /// counts up from there.
    qint64 recoverable() const { return recoverable_; }
    /// What a screen reader says of the scan button: the figure itself, never one on the way to it.
    QString buttonName() const;
    /// What a screen reader says of the running survey: bytes and items, anew every few seconds while the screen is
    /// shown. Empty when none runs.
    const QString& spokenProgress() const { return spokenProgress_; }

    const QString& pathLine() const { return pathLine_; }
    /// What a survey leads to, as it is offered before the first one.
    const QList<ScreenLook>& features() const { return features_; }
    DeviceFace device() const;
    FindingsModel* findings() { return &findings_; }
    TrashBannerModel* trash() { return &trash_; }
    TrendsModel* trends() { return &trends_; }

public slots:
    /// The scan button: begins a survey, and does nothing while one runs.
    void pressScan();
    void cancel();
    /// Goes to the module of a feature.
    void pressFeature(int row);
    /// Tells that "cancel" lost the focus to the scan button because its phase ended. A key pressed in the next second
    /// was meant for "cancel".
    void handOver();
    /// Whether a key may press the scan button: not within a second of handOver(), nor of a key refused before.
    bool takesKey();
    /// The screen is there: what it shows of the machine is read where nobody has yet.
    void appear();

signals:
    void phaseChanged();
    void figuresChanged();
    void buttonNameChanged();
    void spokenProgressChanged();
    void deviceChanged();

private:
    void enterPhase();
    void refreshSoon();
    void refresh();
    void refreshRecoverable();
    void speak();
    static double steadySeconds();

    AppModel& app_;
    const QList<ScreenLook> features_;
    FindingsModel findings_;
    TrashBannerModel trash_;
    TrendsModel trends_;
    std::function<double()> now_;
    QTimer timer_;
    bool stale_ = false;  ///< something was reported since the last refresh
    qint64 items_ = 0;
    qint64 scanned_ = 0;
    qint64 recoverable_ = 0;
    QString pathLine_;
    QString spokenProgress_;
    double spokenAt_ = 0;             ///< by the clock
    std::optional<double> handedAt_;  ///< by the clock: the handover, or the last key that came too soon after it
};

}  // namespace zelk
