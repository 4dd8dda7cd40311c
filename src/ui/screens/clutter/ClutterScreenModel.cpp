// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/ClutterScreenModel.h"

#include <algorithm>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/ScreenLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

ClutterScreenModel::ClutterScreenModel(AppModel& app)
    : SurveyedModule(
          app, Screen::clutter,
          {.title = tr("Clutter"),
           .subtitle = tr("Find your largest and oldest files — videos, downloads, disk images, forgotten archives."),
           .scanLabel = tr("Find large files"),
           .scanningLabel = tr("Hunting for heavy files…")}),
      app_(app),
      undoBar_(app, RemovalUndo::Source::largeFile) {
    connect(&app, &AppModel::insightsChanged, this, &ClutterScreenModel::refresh);
    connect(this, &ModuleScreenModel::phaseChanged, this, &ClutterScreenModel::refresh);
    refresh();
}

void ClutterScreenModel::setOnScreen(bool onScreen) {
    if (onScreen == onScreen_) return;
    onScreen_ = onScreen;
    if (onScreen) refresh();
}

QList<FileTypeLook> ClutterScreenModel::pills() const {
    const ScreenLook& all = lookOf(Screen::clutter);
    QList<FileTypeLook> pills{{tr("All"), all.color, all.symbol}};
    for (const FileType type : types_) pills.append(lookOf(type));
    return pills;
}

int ClutterScreenModel::pill() const {
    if (!typeFilter_) return 0;
    const auto found = std::find(types_.begin(), types_.end(), *typeFilter_);
    return found == types_.end() ? -1 : static_cast<int>(found - types_.begin()) + 1;
}

void ClutterScreenModel::sort(int order) {
    const bool byAge = order == 1;
    if (byAge == sortByAge_) return;
    sortByAge_ = byAge;
    refresh();
    emit orderChanged();
    emit rearranged();
}

void ClutterScreenModel::filter(int pill) {
    if (pill < 0 || pill > static_cast<int>(types_.size()) || pill == this->pill()) return;
    typeFilter_.reset();
    if (pill > 0) typeFilter_ = types_[static_cast<std::size_t>(pill - 1)];
    refresh();
    emit pillChanged();
    emit rearranged();
}

void ClutterScreenModel::pick(int row) {
    picked_ = rows_.pathAt(row);
}

void ClutterScreenModel::reveal() {
    if (!picked_.empty()) app_.workspace().reveal({picked_});
}

void ClutterScreenModel::moveToTrash() {
    if (!picked_.empty()) app_.trashLargeFile(picked_);
}

bool ClutterScreenModel::isTrashKey(int key, int modifiers) const {
    const auto held = Qt::KeyboardModifiers::fromInt(modifiers) & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (SystemTexts::shown() == SystemTexts::System::macOS)
        return key == Qt::Key_Backspace && held == Qt::ControlModifier;
    return key == Qt::Key_Delete && held == Qt::NoModifier;
}

/// Skipped during a survey, whose results are not known yet.
void ClutterScreenModel::refresh() {
    if (app_.scanPhase() != AppModel::ScanPhase::finished) return;
    std::vector<FileType> types;
    for (const auto& [type, tally] : app_.sortedTypeTotals()) types.push_back(type);
    if (std::exchange(types_, types) != types) {
        emit pillsChanged();
        emit pillChanged();
    }
    rows_.show(shownFiles(), app_.platform().clock.now());
    if (std::exchange(nothing_, app_.insights().topFiles.empty()) != nothing_) emit nothingChanged();
}

std::vector<LargeFile> ClutterScreenModel::shownFiles() const {
    std::vector<LargeFile> files = app_.insights().topFiles;
    if (typeFilter_) std::erase_if(files, [this](const LargeFile& file) { return file.type != *typeFilter_; });
    if (sortByAge_)
        std::stable_sort(files.begin(), files.end(),
                         [](const LargeFile& a, const LargeFile& b) { return a.modified < b.modified; });
    else
        std::stable_sort(files.begin(), files.end(),
                         [](const LargeFile& a, const LargeFile& b) { return a.size > b.size; });
    return files;
}

}  // namespace zelk

#include "moc_ClutterScreenModel.cpp"
