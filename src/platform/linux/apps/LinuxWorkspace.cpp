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
#include "platform/linux/apps/HostQuestion.h"

namespace zelk {

namespace {

constexpr std::chrono::seconds knownFor{1};
constexpr std::chrono::seconds unknownFor{60};

LinuxWorkspace::Look lookAtProcesses(const std::string& dataHome) {
    return [places = ApplicationPlaces::ofEnvironment(dataHome)] {
        return std::optional(runningApplicationsOf(installedApplications(places), runningProcesses()));
    };
}

LinuxWorkspace::Look lookFrom(const Sandbox& sandbox, const std::string& dataHome, ChildProcess& processes) {
    if (!sandbox.isInside()) return lookAtProcesses(dataHome);
    return [&processes, locales = ApplicationPlaces::ofEnvironment(dataHome).locales] {
        return askHost(processes, locales);
    };
}

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

LinuxWorkspace::LinuxWorkspace(const std::string& dataHome, std::string trash, const Sandbox& sandbox,
                               ChildProcess& processes)
    : LinuxWorkspace(dataHome, std::move(trash), startDetached, QDBusConnection::sessionBus,
                     lookFrom(sandbox, dataHome, processes)) {}

LinuxWorkspace::LinuxWorkspace(const std::string& dataHome, std::string trash, Launcher launcher, Bus bus, Look look)
    : trash_(std::move(trash)),
      launcher_(std::move(launcher)),
      bus_(std::move(bus)),
      look_(look ? std::move(look) : lookAtProcesses(dataHome)) {}

LinuxWorkspace::~LinuxWorkspace() = default;

const std::optional<RunningApplications>& LinuxWorkspace::running() {
    if (!runningSince_ || std::chrono::steady_clock::now() - *runningSince_ > (running_ ? knownFor : unknownFor)) {
        running_ = look_();
        runningSince_ = std::chrono::steady_clock::now();
    }
    return running_;
}

std::vector<std::string> LinuxWorkspace::runningApplications() {
    return running() ? running_->names : std::vector<std::string>();
}

std::vector<std::string> LinuxWorkspace::runningApplicationIds() {
    return running() ? running_->ids : std::vector<std::string>();
}

bool LinuxWorkspace::knowsRunningApplications() {
    return running().has_value();
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
