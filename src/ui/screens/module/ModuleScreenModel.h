// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>

#include "state/Screen.h"

namespace zelk {

class AppModel;

/// The texts of ModuleScaffold. Empty ones take no space.
struct ModuleTexts {
    QString title;
    QString subtitle;
    QString scanLabel;      ///< of the button on the start page
    QString scanningLabel;  ///< shown while it scans

    bool operator==(const ModuleTexts&) const = default;
};

/// The states of a module that scans for something, each with a page of its own.
enum class ModulePhase { idle, scanning, results };

/// The model of ModuleScaffold: texts, phase and progress. Subclasses set the phase and detail as they work, and pass
/// what the button does. Main thread.
class ModuleScreenModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT FINAL)
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)
    Q_PROPERTY(QColor tint READ tint CONSTANT FINAL)
    Q_PROPERTY(QString scanLabel READ scanLabel CONSTANT FINAL)
    Q_PROPERTY(QString scanningLabel READ scanningLabel CONSTANT FINAL)
    Q_PROPERTY(bool idle READ idle NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool scanning READ scanning NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool results READ results NOTIFY phaseChanged FINAL)
    Q_PROPERTY(QString scanDetail READ scanDetail NOTIFY scanDetailChanged FINAL)
    Q_PROPERTY(double share READ share NOTIFY shareChanged FINAL)
    Q_PROPERTY(QString doing READ doing NOTIFY shareChanged FINAL)

public:
    /// An empty title is replaced by the screen's.
    ModuleScreenModel(Screen screen, ModuleTexts texts, std::function<void()> onScan = {},
                      std::function<void()> onCancel = {});

    Screen screen() const { return screen_; }
    QString title() const { return texts_.title; }
    QString subtitle() const { return texts_.subtitle; }
    QString symbol() const;
    QColor tint() const;
    QString scanLabel() const { return texts_.scanLabel; }
    QString scanningLabel() const { return texts_.scanningLabel; }

    ModulePhase phase() const { return phase_; }
    bool idle() const { return phase_ == ModulePhase::idle; }
    bool scanning() const { return phase_ == ModulePhase::scanning; }
    bool results() const { return phase_ == ModulePhase::results; }
    void setPhase(ModulePhase phase);

    /// The progress as one line; may be empty.
    const QString& scanDetail() const { return scanDetail_; }
    void setScanDetail(const QString& detail);

    /// How much of the scan is done, from 0 to 1; negative if that is not known.
    double share() const { return share_; }
    /// What it does, for a screen reader: the label and how much of it is done.
    QString doing() const;
    /// `told` is the share in words; may be empty.
    void setShare(double share, const QString& told);

public slots:
    /// Starts a scan, as the button of the start page does.
    void scan();
    /// Cancels a running scan.
    void cancel();

signals:
    void phaseChanged();
    void scanDetailChanged();
    void shareChanged();

private:
    Screen screen_;
    ModuleTexts texts_;
    std::function<void()> onScan_;
    std::function<void()> onCancel_;
    ModulePhase phase_ = ModulePhase::idle;
    QString scanDetail_;
    double share_ = -1;
    QString toldShare_;
};

/// A module based on the survey: has its phase, starts one with its button, and shows its progress, throttled to a
/// dozen updates per second. Main thread.
class SurveyedModule : public zelk::ModuleScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")

public:
    /// `app` must outlive it.
    SurveyedModule(AppModel& app, Screen screen, ModuleTexts texts);

private:
    void followPhase();
    void followProgress();

    AppModel& app_;
    QTimer timer_;
};

}  // namespace zelk
