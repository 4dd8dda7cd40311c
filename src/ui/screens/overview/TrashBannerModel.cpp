// SPDX-License-Identifier: MIT
#include "ui/screens/overview/TrashBannerModel.h"

#include "platform/Workspace.h"
#include "state/AppModel.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

TrashBannerModel::TrashBannerModel(AppModel& app, bool showWhenEmpty, QObject* parent)
    : QObject(parent), app_(app), showWhenEmpty_(showWhenEmpty) {
    connect(&app, &AppModel::trashChanged, this, &TrashBannerModel::changed);
}

bool TrashBannerModel::shown() const {
    return showWhenEmpty_ || !app_.trashAccessible() || app_.trashBytes() != 0;
}

QString TrashBannerModel::subtitle() const {
    if (app_.emptyingTrash()) return tr("emptying the Trash…");
    if (app_.trashLoading() && app_.trashBytes() == 0 && app_.trashAccessible()) return tr("reading…");
    if (!app_.trashAccessible()) return SystemTexts::of(SystemTexts::TrashLocked);
    if (app_.trashBytes() < 1) return tr("empty");
    return tr("free it by emptying the Trash");
}

bool TrashBannerModel::busy() const {
    return app_.emptyingTrash() || app_.trashLoading();
}

bool TrashBannerModel::known() const {
    return !busy() && app_.trashAccessible();
}

qint64 TrashBannerModel::bytes() const {
    return app_.trashBytes();
}

QString TrashBannerModel::action() const {
    if (app_.emptyingTrash()) return {};
    if (!app_.trashAccessible()) return SystemTexts::of(SystemTexts::UnlockTrash);
    return app_.trashBytes() >= 1 ? tr("Empty") : QString();
}

QString TrashBannerModel::actionName() const {
    const QString word = action();
    return word.isEmpty() || !app_.trashAccessible() ? word : tr("Empty Trash");
}

void TrashBannerModel::appear() {
    app_.refreshTrash();
}

void TrashBannerModel::act() {
    if (app_.emptyingTrash()) return;
    if (!app_.trashAccessible())
        app_.workspace().openURL(accessSettingsURL);
    else if (app_.trashBytes() >= 1)
        app_.emptyTrash();
}

}  // namespace zelk

#include "moc_TrashBannerModel.cpp"
