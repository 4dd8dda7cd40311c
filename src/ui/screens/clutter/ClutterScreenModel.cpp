// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/ClutterScreenModel.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/FileTypeLook.h"
#include "ui/theme/ScreenLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

ModuleTexts texts() {
    ModuleTexts texts;
    texts.title = ClutterScreenModel::tr("Clutter");
    texts.subtitle = ClutterScreenModel::tr(
        "Find your largest and oldest files — videos, downloads, disk images, forgotten archives.");
    texts.scanLabel = ClutterScreenModel::tr("Find large files");
    texts.scanningLabel = ClutterScreenModel::tr("Hunting for heavy files…");
    return texts;
}

}  // namespace

void TypePills::show(const std::vector<FileType>& types) {
    std::vector<Filter> pills{Filter()};
    pills.insert(pills.end(), types.begin(), types.end());
    edit(pills_, std::move(pills), [](const Filter& type) { return type ? rawValue(*type) : std::string_view(); });
    allRowsChanged({reachedRole});
}

void TypePills::choose(Filter filter) {
    chosen_ = filter;
    allRowsChanged({chosenRole, reachedRole});
}

QVariant TypePills::value(std::size_t row, int role) const {
    const Filter& type = pills_[row];
    switch (role) {
        case nameRole:
            return type ? lookOf(*type).name : tr("All");
        case symbolRole:
            return type ? lookOf(*type).symbol : lookOf(Screen::clutter).symbol;
        case colorRole:
            return type ? lookOf(*type).color : lookOf(Screen::clutter).color;
        case chosenRole:
            return type == chosen_;
        case reachedRole:
            return isReached(row);
        default:
            return {};
    }
}

bool TypePills::isReached(std::size_t row) const {
    if (pills_[row] == chosen_) return true;
    return row == 0 && std::find(pills_.begin(), pills_.end(), chosen_) == pills_.end();
}

ClutterScreenModel::ClutterScreenModel(AppModel& app)
    : SurveyedModule(app, Screen::clutter, texts()), app_(app), undoBar_(app, RemovalUndo::Source::largeFile) {
    connect(&app, &AppModel::insightsChanged, this, &ClutterScreenModel::refresh);
    connect(this, &ModuleScreenModel::phaseChanged, this, &ClutterScreenModel::refresh);
    refresh();
}

void ClutterScreenModel::setOnScreen(bool onScreen) {
    if (onScreen == onScreen_) return;
    onScreen_ = onScreen;
    if (onScreen) refresh();
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
    if (pill < 0 || pill >= pills_.rowCount()) return;
    const TypePills::Filter filter = pills_.filterAt(pill);
    if (filter == typeFilter()) return;
    pills_.choose(filter);
    refresh();
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
    pills_.show(types);
    rows_.show(shownFiles(), app_.platform().clock.now());
    if (std::exchange(nothing_, app_.insights().topFiles.empty()) != nothing_) emit nothingChanged();
}

std::vector<LargeFile> ClutterScreenModel::shownFiles() const {
    std::vector<LargeFile> files = app_.insights().topFiles;
    if (const TypePills::Filter& type = typeFilter())
        std::erase_if(files, [&](const LargeFile& file) { return file.type != *type; });
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
