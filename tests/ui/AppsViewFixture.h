// SPDX-License-Identifier: MIT
// The view of Apps with its model.
#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "TextsOf.h"
#include "ViewFixture.h"
#include "fakes/AppsHome.h"
#include "ui/screens/apps/AppsScreenModel.h"

namespace zelk {

class AppsViewFixture : public ViewFixture {
protected:
    ~AppsViewFixture() override { close(); }

    AppsModel& apps() { return model().apps(); }
    AppsScreenModel& screen() {
        if (!screen_) screen_ = std::make_unique<AppsScreenModel>(model());
        return *screen_;
    }
    void open(QSize size = {900, 700}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("AppsView"), "apps", &screen(), size);
    }
    /// With its applications and their footprints.
    void openScanned(QSize size = {900, 700}) {
        int changes = 0;
        const auto counting = QObject::connect(&apps(), &AppsModel::appsChanged, &apps(), [&] { ++changes; });
        apps().scanApps();
        runUntil([&] { return changes == 2; });
        QObject::disconnect(counting);
        open(size);
    }
    QQuickItem& list() { return *find("appList"); }
    /// Opens the sheet for a row, and waits for what it lists.
    void ask(int row) {
        click(("uninstall" + std::to_string(row)).c_str());
        runUntil([this] { return !screen().sheet()->loading(); });
        settle();
    }
    void confirm() {
        click("confirmUninstall");
        runUntil([this] { return !apps().removing(); });
        settle();
    }
    std::vector<std::string> rowNames() {
        std::vector<std::string> names;
        AppRows& rows = *screen().rows();
        for (int row = 0; row < rows.rowCount(); ++row)
            names.push_back(rows.data(rows.index(row), AppRows::nameRole).toString().toStdString());
        return names;
    }
    QAccessibleInterface& said(int row) {
        for (QQuickItem* item : seen())
            if (item->property("index").toInt() == row && item->property("uninstallName").isValid())
                return *QAccessible::queryAccessibleInterface(item);
        return *QAccessible::queryAccessibleInterface(&view());
    }

private:
    std::unique_ptr<AppsScreenModel> screen_;
};

/// The bundles Inkwell (300 MB, with 1 GB elsewhere), Sonata (500 MB) and Tidepool (100 MB, without an identifier).
class MacApps : public AppsViewFixture {
protected:
    MacApps() {
        fakes::addBundle(machine, "Inkwell", 300'000'000, "org.sample.inkwell");
        fakes::addBundle(machine, "Sonata", 500'000'000, "org.sample.sonata");
        fakes::addBundle(machine, "Tidepool", 100'000'000);
        machine.files.addFile(home + "/Library/Application Support/org.sample.inkwell", {}, 900'000'000);
        machine.files.addFile(home + "/Library/Caches/Inkwell/file", {}, 100'000'000);
        machine.files.addFile(home + "/Library/Caches/Inkwell/.hidden", {}, 50'000'000);
    }

private:
    const TextsOf texts_{macOS};
};

class LinuxAppsWindow : public AppsViewFixture {
protected:
    LinuxAppsWindow() {
        desktop.fill();
        machine.files.addFile(home + "/.var/app/org.sample.Orrery/sky", {}, 2'000'000);
        machine.files.addFile(home + "/.config/studio/settings", {}, 1'000'000);
        machine.files.addFile(home + "/snap/chat/42/file", {}, 3'000'000);
        // The one before was made for a Mac.
        destroyModel();
        singleton<Theme>("Theme").follow(model());
    }

    fakes::LinuxApps desktop{machine};

private:
    const TextsOf texts_{desktopLinux};
};

}  // namespace zelk
