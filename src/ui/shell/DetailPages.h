// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QVariantMap>
#include <array>
#include <functional>
#include <memory>

#include "state/Screen.h"
#include "ui/controls/RowModel.h"

namespace zelk {

class AppModel;
struct WindowServices;

/// What the models of screens are created from. Outlives them.
struct ScreenContext {
    AppModel& app;
    const WindowServices& services;
    std::function<void()> openHelp = [] {};  ///< shows the manual
};

/// List model of the screens beside the sidebar, a row each in the order of Screen, with their models. A view is
/// created when its screen is first shown, and then kept; only the current one is visible. Main thread.
class DetailPages : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")

public:
    enum Role { viewRole = Qt::UserRole, builtRole, currentRole };

    explicit DetailPages(const ScreenContext& context);

    /// The required properties of the view in this row.
    Q_INVOKABLE QVariantMap given(int row);

    /// The view of the current screen: its file's name without the extension.
    QString currentView() const;
    /// The screen's model, created on first use. `Model` must be the class that the table of screens creates.
    template <class Model>
    Model& model(Screen screen) {
        return static_cast<Model&>(*modelOf(screen));
    }

private:
    std::size_t size() const override { return allScreens.size(); }
    QVariant value(std::size_t row, int role) const override;

    void followSelection();

    QObject* modelOf(Screen screen);

    ScreenContext context_;
    std::array<std::unique_ptr<QObject>, allScreens.size()> models_;
    std::array<bool, allScreens.size()> built_{};
    int current_ = 0;
};

}  // namespace zelk
