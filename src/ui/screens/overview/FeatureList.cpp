// SPDX-License-Identifier: MIT
#include "ui/screens/overview/FeatureList.h"

#include "ui/theme/ScreenLook.h"

namespace zelk {

const std::vector<FeatureList::Feature>& FeatureList::features() {
    static const std::vector<Feature> all{
        {"sparkles", "Reclaim junk", Screen::reclaim},
        {"doc.on.doc", "Find duplicates", Screen::duplicates},
        {"tray.full", "Largest files", Screen::clutter},
        {"circle.hexagongrid", "Visual map", Screen::lens},
    };
    return all;
}

int FeatureList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(features().size());
}

QVariant FeatureList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Feature& feature = features()[static_cast<std::size_t>(index.row())];
    switch (role) {
        case symbolRole:
            return feature.symbol;
        case Qt::DisplayRole:
        case labelRole:
            return feature.label;
        case tintRole:
            return lookOf(feature.screen).color;
        default:
            return {};
    }
}

QHash<int, QByteArray> FeatureList::roleNames() const {
    return {{symbolRole, "symbol"}, {labelRole, "label"}, {tintRole, "tint"}};
}

}  // namespace zelk

#include "moc_FeatureList.cpp"
