// SPDX-License-Identifier: MIT
#include "ui/shell/DetailPages.h"

#include <QUrl>
#include <utility>

#include "state/AppModel.h"

namespace zelk {

DetailPages::DetailPages(const ScreenContext& context)
    : RowModel({"view", "built", "current"}), context_(context), current_(static_cast<int>(context.app.selection())) {
    built_[static_cast<std::size_t>(current_)] = true;
    connect(&context.app, &AppModel::selectionChanged, this, &DetailPages::followSelection);
}

QVariant DetailPages::value(std::size_t row, int role) const {
    switch (role) {
        case viewRole:
            return QUrl(QStringLiteral("qrc:/Zelk/App/%1.qml").arg(QLatin1String(placeOf(allScreens[row]).view)));
        case builtRole:
            return built_[row];
        case currentRole:
            return row == static_cast<std::size_t>(current_);
        default:
            return {};
    }
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
    // Shows the new page before hiding the old one.
    rowChanged(current_, {builtRole, currentRole});
    rowChanged(before, {currentRole});
}

}  // namespace zelk

#include "moc_DetailPages.cpp"
