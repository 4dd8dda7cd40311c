// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/controls/RowModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

class AppModel;

/// List model of the AppModel's scan roots, in its order. Paths are bytes; display text is derived from them and never
/// converted back. Main thread.
class ScanRootList : public zelk::RowModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { pathRole = Qt::UserRole, removeNameRole };

    /// `app` must outlive it.
    explicit ScanRootList(AppModel& app);

private:
    std::vector<std::string> roots_;
};

/// The settings. Has no state of its own: changes go to the AppModel at once and last until the application ends. Main
/// thread.
class SettingsScreenModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell")
    Q_PROPERTY(zelk::ScreenLook look READ look CONSTANT FINAL)
    Q_PROPERTY(zelk::ScanRootList* roots READ roots CONSTANT FINAL)
    Q_PROPERTY(QString ageFilterText READ ageFilterText NOTIFY ageFilterChanged FINAL)
    Q_PROPERTY(int ageFilterDays READ ageFilterDays WRITE setAgeFilterDays NOTIFY ageFilterChanged FINAL)
    Q_PROPERTY(int leastAge READ leastAge CONSTANT FINAL)
    Q_PROPERTY(int greatestAge READ greatestAge CONSTANT FINAL)
    Q_PROPERTY(bool hardDelete READ hardDelete WRITE setHardDelete NOTIFY hardDeleteChanged FINAL)
    Q_PROPERTY(int theme READ theme WRITE setTheme NOTIFY themeChanged FINAL)

public:
    /// `app` must outlive it. `pickFolder` opens a modal folder dialog and returns the path, or nothing if cancelled.
    SettingsScreenModel(AppModel& app, std::function<std::optional<std::string>()> pickFolder);

    const ScreenLook& look() const { return lookOf(Screen::settings); }
    ScanRootList* roots() { return &roots_; }

    /// "Age filter default: 14 days"
    QString ageFilterText() const;
    int ageFilterDays() const;
    int leastAge() const { return 0; }
    int greatestAge() const { return 365; }
    /// Clamped to leastAge() and greatestAge().
    void setAgeFilterDays(int days);
    bool hardDelete() const;
    void setHardDelete(bool enabled);

    /// 0 follows the system, 1 is light, 2 dark. Other values are ignored.
    int theme() const;
    void setTheme(int place);

public slots:
    /// Every change of the list starts a survey, unless one is running, which continues.
    void addFolder();
    void removeFolder(int row);
    void rescan();

signals:
    void ageFilterChanged();
    void hardDeleteChanged();
    void themeChanged();

private:
    AppModel& app_;
    std::function<std::optional<std::string>()> pickFolder_;
    ScanRootList roots_;
};

}  // namespace zelk
