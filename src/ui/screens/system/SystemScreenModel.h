// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <cstdint>

#include "ui/screens/explanation/ExplanationModel.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/screens/system/DiskImageRows.h"
#include "ui/screens/system/SnapshotsModel.h"

namespace zelk {

class AppModel;

/// The System screen: what fills the volume beside the files of the survey. Keeps what the last survey said
/// while another one runs. Main thread.
class SystemScreenModel : public zelk::SurveyedModule {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool onScreen READ onScreen WRITE setOnScreen FINAL)
    Q_PROPERTY(bool volumed READ volumed NOTIFY volumeChanged FINAL)
    Q_PROPERTY(double totalBytes READ totalBytes NOTIFY volumeChanged FINAL)
    Q_PROPERTY(double usedBytes READ usedBytes NOTIFY volumeChanged FINAL)
    Q_PROPERTY(double freeBytes READ freeBytes NOTIFY volumeChanged FINAL)
    Q_PROPERTY(double purgeableBytes READ purgeableBytes NOTIFY volumeChanged FINAL)
    Q_PROPERTY(bool anyDiskImages READ anyDiskImages NOTIFY diskImagesChanged FINAL)
    Q_PROPERTY(zelk::DiskImageRows* diskImages READ diskImages CONSTANT FINAL)
    Q_PROPERTY(zelk::ExplanationModel* explanation READ explanation CONSTANT FINAL)
    Q_PROPERTY(zelk::SnapshotsModel* snapshots READ snapshots CONSTANT FINAL)
    Q_PROPERTY(QString skippedLine READ skippedLine NOTIFY skippedChanged FINAL)

public:
    /// `app` must outlive it.
    explicit SystemScreenModel(AppModel& app);

    /// Whether the screen is visible. Snapshots are listed when its results become so.
    bool onScreen() const { return onScreen_; }
    void setOnScreen(bool onScreen);

    /// Whether the figures of the volume, in bytes, are known; else they are 0.
    bool volumed() const;
    double totalBytes() const;
    double usedBytes() const;
    double freeBytes() const;
    /// What the system would free by itself for important data.
    double purgeableBytes() const;

    bool anyDiskImages() const { return diskImages_.rowCount() > 0; }
    DiskImageRows* diskImages() { return &diskImages_; }
    ExplanationModel* explanation() { return &explanation_; }
    SnapshotsModel* snapshots() { return &snapshots_; }
    /// How many folders the survey could not read; empty if none.
    QString skippedLine() const;

public slots:
    /// Explains the disk image in this row, or shows it in the file manager. Both ignore invalid rows.
    void explain(int row);
    void reveal(int row);

signals:
    void volumeChanged();
    void diskImagesChanged();
    void skippedChanged();

private:
    void refresh();
    void listIfSeen();

    AppModel& app_;
    DiskImageRows diskImages_;
    ExplanationModel explanation_;
    SnapshotsModel snapshots_;
    std::int64_t skipped_ = 0;
    bool onScreen_ = false;
};

}  // namespace zelk
