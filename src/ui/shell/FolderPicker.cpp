// SPDX-License-Identifier: MIT
#include "ui/shell/FolderPicker.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QString>
#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/FolderPath.h"

namespace zelk {

namespace {

/// Keeps a file dialog from creating a missing home folder when it stores its own settings on destruction: redirects
/// user settings for the lifetime of this object.
class UserSettingsGuard {
public:
    UserSettingsGuard() {
        if (!QFileInfo::exists(QDir::homePath())) redirect(QStringLiteral("/dev/null"));
    }
    UserSettingsGuard(const UserSettingsGuard&) = delete;
    UserSettingsGuard& operator=(const UserSettingsGuard&) = delete;
    ~UserSettingsGuard() { redirect(folder_); }

private:
    static void redirect(const QString& folder) {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
    }

    const QString folder_ = QFileInfo(QSettings(QSettings::UserScope, QStringLiteral("Zelk")).fileName()).path();
};

constexpr std::string_view replacement = "\xef\xbf\xbd";  // U+FFFD

/// The only entry of `folder` that decodes to the text `name`; absent if there is none or more than one.
std::optional<std::string> onlyEntryDecodingTo(const std::string& name, const std::string& folder, FileManager& files) {
    const QString wanted = QString::fromStdString(name);
    std::optional<std::string> found;
    for (std::string& entry : files.list(folder).value_or(std::vector<std::string>())) {
        if (QString::fromStdString(entry) != wanted) continue;
        if (found) return std::nullopt;
        found = std::move(entry);
    }
    return found;
}

}  // namespace

std::optional<std::string> pickFolder(FileManager& files) {
    const UserSettingsGuard settingsGuard;
    const QString title = QCoreApplication::translate("FolderPicker", "Choose a folder to survey");
    const QUrl home = QUrl::fromLocalFile(QDir::homePath());
    const QUrl url =
        QFileDialog::getExistingDirectoryUrl(nullptr, title, home, QFileDialog::ShowDirsOnly, {QStringLiteral("file")});
    return chosenFolder(url, files);
}

std::optional<std::string> chosenFolder(const QUrl& url, FileManager& files) {
    if (!url.isLocalFile() || !url.host().isEmpty()) return std::nullopt;
    const std::string path =
        normalFolder(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toUtf8()).toStdString());
    if (!path.starts_with('/')) return std::nullopt;
    std::string folder = "/";
    for (std::size_t at = 1; at < path.size();) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        std::string name = path.substr(at, end - at);
        at = end + 1;
        if (name.find(replacement) != std::string::npos && !files.exists(pathIn(folder, name))) {
            std::optional<std::string> meant = onlyEntryDecodingTo(name, folder, files);
            if (!meant) return std::nullopt;
            name = std::move(*meant);
        }
        folder = pathIn(folder, name);
    }
    return folder;
}

}  // namespace zelk
