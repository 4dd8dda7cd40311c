// SPDX-License-Identifier: MIT
#include "platform/linux/apps/LinuxWorkspace.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "platform/linux/apps/DetachedProgram.h"
#include "platform/linux/apps/FileUri.h"

namespace zelk {

namespace {

/// Each folder once, in the order of the paths.
std::vector<std::string> foldersOf(const std::vector<std::string>& paths) {
    std::vector<std::string> folders;
    for (const std::string& path : paths) {
        const std::size_t slash = path.rfind('/');
        if (slash == std::string::npos) continue;
        std::string folder = slash == 0 ? "/" : path.substr(0, slash);
        if (std::find(folders.begin(), folders.end(), folder) == folders.end()) folders.push_back(std::move(folder));
    }
    return folders;
}

QDBusMessage showItems(const std::vector<std::string>& paths) {
    QStringList uris;
    for (const std::string& path : paths) uris.append(QString::fromStdString(fileUri(path)));
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << uris << QString();
    return call;
}

}  // namespace

/// The pending calls to the file manager; cancelled with the workspace.
class LinuxWorkspace::Reveals : public QObject {};

LinuxWorkspace::LinuxWorkspace(const std::string& dataHome, std::string trash)
    : LinuxWorkspace(dataHome, std::move(trash), startDetached, QDBusConnection::sessionBus) {}

LinuxWorkspace::LinuxWorkspace(const std::string& dataHome, std::string trash, Launcher launcher, Bus bus)
    : places_(ApplicationPlaces::ofEnvironment(dataHome)),
      trash_(std::move(trash)),
      launcher_(std::move(launcher)),
      bus_(std::move(bus)) {}

LinuxWorkspace::~LinuxWorkspace() = default;

const RunningApplications& LinuxWorkspace::running() {
    const auto now = std::chrono::steady_clock::now();
    if (!runningSince_ || now - *runningSince_ > std::chrono::seconds(1)) {
        running_ = runningApplicationsOf(installedApplications(places_), runningProcesses());
        runningSince_ = now;
    }
    return running_;
}

std::vector<std::string> LinuxWorkspace::runningApplications() {
    return running().names;
}

std::vector<std::string> LinuxWorkspace::runningApplicationIds() {
    return running().ids;
}

void LinuxWorkspace::reveal(const std::vector<std::string>& paths) {
    if (paths.empty()) return;
    const auto openFolders = [launcher = launcher_, folders = foldersOf(paths)] {
        for (const std::string& folder : folders) launcher({"xdg-open", folder});
    };
    const QDBusConnection bus = bus_();
    if (!bus.isConnected()) return openFolders();
    if (reveals_ == nullptr) reveals_ = std::make_unique<Reveals>();
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(showItems(paths)), reveals_.get());
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, openFolders] {
        if (answer->isError()) openFolders();
        answer->deleteLater();
    });
}

void LinuxWorkspace::openURL(const std::string& url) {
    if (url == accessSettingsURL) return reveal({trash_});
    launcher_({"xdg-open", url});
}

std::optional<IconPixels> LinuxWorkspace::icon(const std::string& path, bool isDirectory, int side) {
    return icons_.icon(path, isDirectory, side);
}

std::optional<IconPixels> LinuxWorkspace::entryIcon(const std::string& nameOrPath, int side) {
    return icons_.entryIcon(nameOrPath, side);
}

}  // namespace zelk
