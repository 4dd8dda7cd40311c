// SPDX-License-Identifier: MIT
#include "ui/screens/help/HelpModel.h"

namespace zelk {

QString HelpModel::listName() const {
    return QStringLiteral("Topics");
}

int HelpModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(helpTopics().size());
}

QVariant HelpModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const HelpTopic& topic = helpTopics()[static_cast<std::size_t>(index.row())];
    switch (role) {
        case symbolRole:
            return topic.symbol();
        case tintRole:
            return topic.color();
        case Qt::DisplayRole:
        case titleRole:
            return topic.title;
        case currentRole:
            return topic.id == current();
        default:
            return {};
    }
}

QHash<int, QByteArray> HelpModel::roleNames() const {
    return {{symbolRole, "symbol"}, {tintRole, "tint"}, {titleRole, "title"}, {currentRole, "current"}};
}

int HelpModel::current() const {
    return selection_.value_or(0);
}

void HelpModel::select(int row) {
    if (row < 0 || row >= rowCount()) return;
    const int before = current();
    selection_ = helpTopics()[static_cast<std::size_t>(row)].id;
    if (row == before) return;
    for (const int changed : {before, row}) emit dataChanged(index(changed), index(changed), {currentRole});
    emit currentChanged();
}

}  // namespace zelk

#include "moc_HelpModel.cpp"
