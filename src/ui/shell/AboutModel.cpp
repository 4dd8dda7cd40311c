// SPDX-License-Identifier: MIT
#include "ui/shell/AboutModel.h"

#include "ui/theme/DisplayText.h"

namespace zelk {

AboutModel::AboutModel(const BundleInfo& bundle, const DeviceInfo& device)
    : name_(bundle.name.value_or(QStringLiteral("Zelk"))) {
    const QString absent = QStringLiteral("—");
    rows_.push_back({QStringLiteral("Version"),
                     QStringLiteral("%1 (%2)").arg(bundle.version.value_or(absent), bundle.build.value_or(absent))});
    rows_.push_back({QStringLiteral("System"), displayText(device.osVersion)});
    if (!device.chip.empty()) rows_.push_back({QStringLiteral("Chip"), displayText(device.chip)});
}

QString AboutModel::symbol() const {
    return QStringLiteral("internaldrive");
}

int AboutModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant AboutModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole:
        case labelRole:
            return row.label;
        case valueRole:
            return row.value;
        default:
            return {};
    }
}

QHash<int, QByteArray> AboutModel::roleNames() const {
    return {{labelRole, "label"}, {valueRole, "value"}};
}

}  // namespace zelk

#include "moc_AboutModel.cpp"
