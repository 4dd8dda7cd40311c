// SPDX-License-Identifier: MIT
#include "ui/shell/DetailPages.h"

#include <QUrl>
#include <utility>

#include "state/AppModel.h"

namespace zelk {

DetailPages::DetailPages(const ScreenContext& context)
    : context_(context), current_(static_cast<int>(context.app.selection())) {
    built_[static_cast<std::size_t>(current_)] = true;
    connect(&context.app, &AppModel::selectionChanged, this, &DetailPages::followSelection);
}

int DetailPages::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(allScreens.size());
}

QVariant DetailPages::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
        case viewRole:
            return QUrl(QStringLiteral("qrc:/Zelk/App/%1.qml").arg(QLatin1String(placeOf(allScreens[row]).view)));
        case builtRole:
            return built_[row];
        case currentRole:
            return index.row() == current_;
        default:
            return {};
    }
}

QHash<int, QByteArray> DetailPages::roleNames() const {
    return {{viewRole, "view"}, {builtRole, "built"}, {currentRole, "current"}};
}

QVariantMap DetailPages::given(int row) {
    const Screen screen = allScreens[static_cast<std::size_t>(row)];
    return {{QString::fromLatin1(placeOf(screen).property), QVariant::fromValue(modelOf(screen))}};
}

QObject* DetailPages::modelOf(Screen screen) {
    std::unique_ptr<QObject>& model = models_[static_cast<std::size_t>(screen)];
    if (!model) model = placeOf(screen).make(context_);
    return model.get();
}

void DetailPages::followSelection() {
    const int before = std::exchange(current_, static_cast<int>(context_.app.selection()));
    built_[static_cast<std::size_t>(current_)] = true;
    // The new one is there before the old one goes.
    emit dataChanged(index(current_), index(current_), {builtRole, currentRole});
    emit dataChanged(index(before), index(before), {currentRole});
}

}  // namespace zelk

#include "moc_DetailPages.cpp"
