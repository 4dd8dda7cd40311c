// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>
#include <string_view>

#include "state/HealthModel.h"
#include "ui/screens/health/HealthFaces.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

class AppModel;

/// The health screen: the grade, the gauges, the facts about the machine and what may improve the grade. Each visit has
/// a HealthModel of its own, which goes when another screen is selected; what the view then hides keeps its texts, so
/// that no screen reader hears of it, but for the answer of the last command, which goes. Main thread.
class HealthScreenModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(zelk::ScreenLook look READ look CONSTANT FINAL)
    Q_PROPERTY(bool watched READ watched WRITE setWatched NOTIFY watchedChanged FINAL)
    Q_PROPERTY(QList<zelk::HealthGradeFace> grades READ grades CONSTANT FINAL)
    Q_PROPERTY(int gradeIndex READ gradeIndex NOTIFY gradeChanged FINAL)
    Q_PROPERTY(zelk::HealthGradeFace grade READ grade NOTIFY gradeChanged FINAL)
    Q_PROPERTY(zelk::GaugeFace cpu READ cpu NOTIFY cpuChanged FINAL)
    Q_PROPERTY(zelk::GaugeFace memory READ memory NOTIFY memoryChanged FINAL)
    Q_PROPERTY(zelk::GaugeFace disk READ disk NOTIFY diskChanged FINAL)
    Q_PROPERTY(zelk::GaugeFace battery READ battery NOTIFY batteryChanged FINAL)
    Q_PROPERTY(int gaugeCount READ gaugeCount NOTIFY gaugeCountChanged FINAL)
    Q_PROPERTY(QColor normalLoad READ normalLoad CONSTANT FINAL)
    Q_PROPERTY(QColor elevatedLoad READ elevatedLoad CONSTANT FINAL)
    Q_PROPERTY(QString chip READ chip CONSTANT FINAL)
    Q_PROPERTY(QString cores READ cores CONSTANT FINAL)
    Q_PROPERTY(QString memorySize READ memorySize CONSTANT FINAL)
    Q_PROPERTY(QString osVersion READ osVersion CONSTANT FINAL)
    Q_PROPERTY(QString uptime READ uptime NOTIFY uptimeChanged FINAL)
    Q_PROPERTY(QString junkTitle READ junkTitle NOTIFY junkTitleChanged FINAL)
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged FINAL)
    Q_PROPERTY(QString output READ output NOTIFY outputChanged FINAL)
    Q_PROPERTY(bool showScoreInfo READ showScoreInfo WRITE setShowScoreInfo NOTIFY showScoreInfoChanged FINAL)

public:
    /// `app` must outlive it. `openHelp` opens the manual.
    explicit HealthScreenModel(
        AppModel& app, std::function<void()> openHelp = [] {});

    const ScreenLook& look() const { return lookOf(Screen::health); }

    /// Whether somebody can see the screen. It takes a sample when that begins, and one every two seconds from then on;
    /// otherwise none.
    bool watched() const { return watched_; }
    void setWatched(bool watched);

    const QList<HealthGradeFace>& grades() const { return grades_; }
    int gradeIndex() const { return static_cast<int>(grade_); }
    HealthGradeFace grade() const { return grades_[gradeIndex()]; }
    const GaugeFace& cpu() const { return cpu_; }
    const GaugeFace& memory() const { return memory_; }
    const GaugeFace& disk() const { return disk_; }
    const GaugeFace& battery() const { return battery_; }
    /// How many of the four are shown.
    int gaugeCount() const { return gaugeCount_; }
    QColor normalLoad() const { return normalLoadColor(); }
    QColor elevatedLoad() const { return elevatedLoadColor(); }

    /// May be empty.
    QString chip() const;
    QString cores() const;
    QString memorySize() const;
    QString osVersion() const;
    const QString& uptime() const { return uptime_; }

    /// "Reclaim 3 GB" where a survey has found something safe, else "Find junk to clean".
    const QString& junkTitle() const { return junkTitle_; }
    bool busy() const { return busy_; }
    /// What the last command of this visit had to say; may be empty.
    const QString& output() const { return output_; }

    bool showScoreInfo() const { return showScoreInfo_; }
    void setShowScoreInfo(bool show);

    /// The model of this visit; null while another screen is selected.
    HealthModel* model() const { return model_.get(); }

public slots:
    /// Takes a sample, and the next one in two seconds, if anybody is watching.
    void sample();
    /// Cleans what is safe, unless a removal is under way, or goes to Reclaim to find something, as junkTitle() says.
    void pressJunk();
    void freeMemory();
    void flushDNS();
    void findDuplicates();
    void findLargeFiles();
    /// Closes the explanation of the score and opens the manual.
    void learnMore();

signals:
    void watchedChanged();
    void gradeChanged();
    void cpuChanged();
    void memoryChanged();
    void diskChanged();
    void batteryChanged();
    void gaugeCountChanged();
    void uptimeChanged();
    void junkTitleChanged();
    void busyChanged();
    /// A command has ended, perhaps with the same text as the one before.
    void outputChanged();
    void showScoreInfoChanged();

private:
    void followSelection();
    void beginVisit();
    void takeSample();
    void followBusy();
    void followOutput();
    void followJunk();
    bool reclaimable() const;

    template <class T>
    void assign(T& field, const T& value, void (HealthScreenModel::*changed)()) {
        if (field == value) return;
        field = value;
        emit(this->*changed)();
    }

    AppModel& app_;
    std::function<void()> openHelp_;
    const QList<HealthGradeFace> grades_ = HealthGradeFace::all();
    std::unique_ptr<HealthModel> model_;
    QTimer timer_;
    bool watched_ = false;
    HealthGrade grade_ = HealthGrade::excellent;
    GaugeFace cpu_;
    GaugeFace memory_;
    GaugeFace disk_;
    GaugeFace battery_;
    int gaugeCount_ = 0;
    QString uptime_;
    QString junkTitle_;
    bool busy_ = false;
    QString output_;
    bool showScoreInfo_ = false;
};

}  // namespace zelk
