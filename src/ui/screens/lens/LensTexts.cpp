// SPDX-License-Identifier: MIT
// The texts of LensScreenModel.
#include <algorithm>

#include "state/AppModel.h"
#include "ui/screens/lens/LensScreenModel.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr int placeIconSide = 68;  // pixels

std::int64_t usedOf(const VolumeInfo& volume) {
    return std::max<std::int64_t>(volume.total - volume.available, 0);
}

}  // namespace

QString LensScreenModel::place() const {
    const NodeRef node = walk_.currentNode();
    return node ? displayText(lastComponent(node->fullPath())) : QStringLiteral("—");
}

/// "1 folders" is as intended: the word labels a count rather than agreeing with it.
QString LensScreenModel::placeLine() const {
    const NodeRef node = walk_.currentNode();
    if (!node) return {};
    return tr("%1 · %2 folders").arg(byteFigure(node->size)).arg(node->children.size());
}

QVariant LensScreenModel::placeIcon() const {
    const NodeRef node = walk_.currentNode();
    return node ? icon(node->fullPath(), placeIconSide) : QImage();
}

QString LensScreenModel::selectTitle() const {
    return removable() ? QString::number(walk_.selected().size()) : tr("None");
}
/// The synthetic top of several scan roots has no name.
QString LensScreenModel::listName() const {
    const QString name = place();
    return name.isEmpty() ? tr("Surveyed folders") : tr("Folders in %1").arg(name);
}
QString LensScreenModel::mapName() const {
    const QString name = place();
    return name.isEmpty() ? tr("Map of the surveyed folders") : tr("Map of %1").arg(name);
}

bool LensScreenModel::volumed() const {
    return app_.volume().has_value();
}

QString LensScreenModel::volumeLine() const {
    if (!volumed()) return {};
    return tr("%1 of %2 used").arg(byteFigure(usedOf(*app_.volume())), byteFigure(app_.volume()->total));
}

double LensScreenModel::usedShare() const {
    if (!volumed() || app_.volume()->total < 1) return 0;
    return static_cast<double>(usedOf(*app_.volume())) / static_cast<double>(app_.volume()->total);
}

QString LensScreenModel::caption() const {
    if (!removable()) return tr("No items selected");
    return tr("%1 selected · %2").arg(walk_.selected().size()).arg(byteFigure(walk_.selectedBytes()));
}

}  // namespace zelk
