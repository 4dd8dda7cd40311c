// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <string>

#include "ui/screens/settings/ScanRootList.h"

namespace zelk {

class AppModel;

/// All that the settings say. It has no state of its own: what is changed here is changed in the AppModel at once, and
/// is back to its default at the next start. Main thread.
class SettingsScreenModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell")
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)
    Q_PROPERTY(QColor tint READ tint CONSTANT FINAL)
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT FINAL)
    Q_PROPERTY(QString rootsTitle READ rootsTitle CONSTANT FINAL)
    Q_PROPERTY(zelk::ScanRootList* roots READ roots CONSTANT FINAL)
    Q_PROPERTY(QString noRootsLine READ noRootsLine CONSTANT FINAL)
    Q_PROPERTY(QString addFolderLabel READ addFolderLabel CONSTANT FINAL)
    Q_PROPERTY(QString cleanupTitle READ cleanupTitle CONSTANT FINAL)
    Q_PROPERTY(QString ageFilterText READ ageFilterText NOTIFY ageFilterChanged FINAL)
    Q_PROPERTY(int ageFilterDays READ ageFilterDays WRITE setAgeFilterDays NOTIFY ageFilterChanged FINAL)
    Q_PROPERTY(int leastAge READ leastAge CONSTANT FINAL)
    Q_PROPERTY(int greatestAge READ greatestAge CONSTANT FINAL)
    Q_PROPERTY(QString hardDeleteLabel READ hardDeleteLabel CONSTANT FINAL)
    Q_PROPERTY(QString hardDeleteNote READ hardDeleteNote CONSTANT FINAL)
    Q_PROPERTY(bool hardDelete READ hardDelete WRITE setHardDelete NOTIFY hardDeleteChanged FINAL)
    Q_PROPERTY(QString appearanceTitle READ appearanceTitle CONSTANT FINAL)
    Q_PROPERTY(QString themeLabel READ themeLabel CONSTANT FINAL)
    Q_PROPERTY(QStringList themes READ themes CONSTANT FINAL)
    Q_PROPERTY(int theme READ theme WRITE setTheme NOTIFY themeChanged FINAL)
    Q_PROPERTY(QString rescanLabel READ rescanLabel CONSTANT FINAL)

public:
    /// `app` must outlive it. `pickFolder` asks the person for one folder, modally, and gives its path, or nothing if
    /// none was chosen.
    SettingsScreenModel(AppModel& app, std::function<std::optional<std::string>()> pickFolder);

    QString symbol() const;
    QColor tint() const;
    QString title() const;
    QString subtitle() const;

    QString rootsTitle() const;
    ScanRootList* roots() { return &roots_; }
    QString noRootsLine() const;
    QString addFolderLabel() const;

    QString cleanupTitle() const;
    /// "Age filter default: 14 days"
    QString ageFilterText() const;
    int ageFilterDays() const;
    int leastAge() const { return 0; }
    int greatestAge() const { return 365; }
    /// Stops at both ends.
    void setAgeFilterDays(int days);
    QString hardDeleteLabel() const;
    QString hardDeleteNote() const;
    bool hardDelete() const;
    void setHardDelete(bool enabled);

    QString appearanceTitle() const;
    QString themeLabel() const;
    QStringList themes() const;
    /// The place in `themes`; a place that is not there changes nothing.
    int theme() const;
    void setTheme(int place);

    QString rescanLabel() const;

public slots:
    /// Every change of the list surveys again at once, unless a survey runs: that one goes on.
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
