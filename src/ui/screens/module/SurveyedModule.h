// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include "ui/screens/module/ModuleScreenModel.h"

namespace zelk {

class AppModel;

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
