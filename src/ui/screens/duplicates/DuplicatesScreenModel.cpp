// SPDX-License-Identifier: MIT
#include "ui/screens/duplicates/DuplicatesScreenModel.h"

#include <algorithm>
#include <string>
#include <vector>

#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

DuplicatesScreenModel::DuplicatesScreenModel(AppModel& app)
    : ModuleScreenModel(Screen::duplicates,
                        {.title = tr("Duplicates"),
                         .subtitle = tr("Find byte-identical files — duplicate downloads, copied media, repeated "
                                        "exports — and keep just one."),
                         .scanLabel = tr("Find duplicates"),
                         .scanningLabel = tr("Hashing candidates… this can take a moment")},
                        [&app] { app.duplicates().scan(app.scanRoots()); }),
      app_(app),
      duplicates_(app.duplicates()),
      undoBar_(app, RemovalUndo::Source::duplicates) {
    connect(&duplicates_, &DuplicatesModel::groupsChanged, this, [this] {
        rows_.show(duplicates_.groups());
        if (nothing()) emit emptied();
        emit groupsChanged();
    });
    connect(&duplicates_, &DuplicatesModel::hasScannedChanged, this, &DuplicatesScreenModel::followPhase);
    connect(&duplicates_, &DuplicatesModel::loadingChanged, this, &DuplicatesScreenModel::followPhase);
    connect(&duplicates_, &DuplicatesModel::progressChanged, this, &DuplicatesScreenModel::followProgress);
    rows_.show(duplicates_.groups());
    followPhase();
    followProgress();
}

bool DuplicatesScreenModel::nothing() const {
    return duplicates_.groups().empty();
}

QString DuplicatesScreenModel::summary() const {
    if (nothing()) return lookOf(Screen::duplicates).subtitle;
    return tr("%1 sets · %2 recoverable", "", forPlural(std::ssize(duplicates_.groups())))
        .arg(QString::number(duplicates_.groups().size()), byteFigure(duplicates_.totalRecoverable()));
}

void DuplicatesScreenModel::press(int row) {
    if (rows_.isHead(row))
        keepFirst(row);
    else
        reveal(row);
}

void DuplicatesScreenModel::keepFirst(int row) {
    const std::string hash = rows_.hashAt(row);
    const std::vector<DuplicateGroup>& groups = duplicates_.groups();
    const auto group = std::find_if(groups.begin(), groups.end(), [&](const auto& one) { return one.hash == hash; });
    if (group != groups.end()) duplicates_.trashOthers(*group, group->paths.front());
}

void DuplicatesScreenModel::reveal(int row) {
    const std::string path = rows_.pathAt(row);
    if (!path.empty()) app_.workspace().reveal({path});
}

void DuplicatesScreenModel::followPhase() {
    if (!duplicates_.hasScanned())
        setPhase(ModulePhase::idle);
    else
        setPhase(duplicates_.loading() ? ModulePhase::scanning : ModulePhase::results);
}

void DuplicatesScreenModel::followProgress() {
    const HashProgress& progress = duplicates_.progress();
    if (progress.toHash == 0) return setShare(-1, {});
    setShare(static_cast<double>(progress.hashed) / static_cast<double>(progress.toHash),
             tr("%1 of %2").arg(byteFigure(progress.hashed), byteFigure(progress.toHash)));
}

}  // namespace zelk

#include "moc_DuplicatesScreenModel.cpp"
