// SPDX-License-Identifier: MIT
// The model's beginning and end, and what the user chose. The survey, the Trash and the figures stand in files of their
// own beside this one.
#include "state/AppModel.h"

#include <algorithm>

#include "platform/FolderPath.h"
#include "state/ScanTask.h"

namespace zelk {

namespace {

/// A tree of a hundred thousand folders takes milliseconds to go, which the main thread must not spend. Emptied by the
/// task itself, because a closure is copied on its way and the last copy may be dropped anywhere.
template <class T>
void releaseOn(BackgroundTasks& tasks, T value) {
    tasks.run(TaskPriority::utility, [held = std::make_shared<T>(std::move(value))] { *held = T(); });
}

}  // namespace

AppModel::AppModel(Platform platform, QObject* parent)
    : QObject(parent),
      platform_(platform),
      historyFile_(std::make_shared<SurveyHistory>(platform.files, platform.locations)),
      history_(historyFile_->load()),
      home_(platform.locations.home()),
      device_(platform.vitals.device()) {
    scanRoots_ = {home_};
}

AppModel::~AppModel() {
    // From here on nothing that comes back from another thread finds its way to this object.
    calls_.close();
    if (scanTask_ != nullptr) {
        releaseElsewhere(scanTask_->queue->terminate());
        if (scanTask_->before) releaseElsewhere(std::move(scanTask_->before->root));
    }
    releaseElsewhere(std::move(root_));
}

void AppModel::releaseElsewhere(NodeRef tree) {
    if (tree) releaseOn(platform_.tasks, std::move(tree));
}

void AppModel::releaseElsewhere(std::vector<Reclaimable> items) {
    if (!items.empty()) releaseOn(platform_.tasks, std::move(items));
}

void AppModel::releaseElsewhere(std::vector<ScanUpdate> updates) {
    if (!updates.empty()) releaseOn(platform_.tasks, std::move(updates));
}

void AppModel::setAppearance(Appearance appearance) {
    assign(appearance_, appearance, &AppModel::appearanceChanged);
}

void AppModel::setAudience(Audience audience) {
    assign(audience_, audience, &AppModel::audienceChanged);
}

void AppModel::setSelection(Screen screen) {
    assign(selection_, screen, &AppModel::selectionChanged);
}

void AppModel::setScanRoots(const std::vector<std::string>& roots) {
    std::vector<std::string> once;
    for (const std::string& root : roots) {
        std::string normal = normalFolder(root);
        if (std::find(once.begin(), once.end(), normal) == once.end()) once.push_back(std::move(normal));
    }
    assign(scanRoots_, std::move(once), &AppModel::scanRootsChanged);
}

void AppModel::setAgeFilterDays(std::int64_t days) {
    assign(ageFilterDays_, days, &AppModel::ageFilterDaysChanged);
}

void AppModel::setHardDeleteEnabled(bool enabled) {
    assign(hardDeleteEnabled_, enabled, &AppModel::hardDeleteEnabledChanged);
}

void AppModel::setVolume(std::optional<VolumeInfo> volume) {
    assign(volume_, volume, &AppModel::volumeChanged);
}

void AppModel::readAbsentVolume() {
    if (volume_) return;
    auto work = [this, sender = calls_.sender(), &vitals = platform_.vitals, home = home_] {
        sender.post([this, volume = vitals.volume(home)] {
            if (!volume_) setVolume(volume);
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

std::string_view rawValue(AppModel::Audience audience) {
    return audience == AppModel::Audience::developer ? "Developer" : "Normal";
}

std::string_view rawValue(AppModel::Appearance appearance) {
    switch (appearance) {
        case AppModel::Appearance::system:
            return "system";
        case AppModel::Appearance::light:
            return "light";
        case AppModel::Appearance::dark:
            return "dark";
    }
    return {};
}

}  // namespace zelk

#include "moc_AppModel.cpp"
