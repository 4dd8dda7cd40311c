// SPDX-License-Identifier: MIT
#include "platform/linux/Sandbox.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/FolderPath.h"
#include "platform/Text.h"
#include "platform/posix/DurableFile.h"

namespace zelk {

namespace {

constexpr const char* infoFile = "/.flatpak-info";
constexpr const char* hostRoot = "/run/host";
/// Below a home: where every sandboxed application keeps its own.
constexpr std::string_view sandboxesBelow = ".var/app";
/// What this application is called, should the description not say it.
constexpr const char* usualName = "io.github.zelk.Zelk";

/// What a runtime brings along, and what a sandbox keeps for its processes alone. Not all of /run and /var: removable
/// disks are in the one, and some distributions have the homes in the other.
constexpr std::array<std::string_view, 16> runtimeFolders{
    "/app", "/bin",   "/etc",      "/lib",       "/lib32",      "/lib64",    "/sbin",    "/tmp",
    "/usr", hostRoot, "/run/user", "/var/cache", "/var/config", "/var/data", "/var/lib", "/var/tmp"};

/// The name of the application in the description of its sandbox.
std::string nameIn(std::string_view text) {
    bool ofApplication = false;
    while (!text.empty()) {
        std::string_view line = trimmed(takeLine(text));
        if (line.starts_with('[')) ofApplication = line == "[Application]";
        if (ofApplication && trimmed(takeUntil(line, '=')) == "name") return std::string(trimmed(line));
    }
    return {};
}

bool isName(std::string_view word) {
    return !word.empty() && word.front() != '.' && word.find('/') == std::string_view::npos &&
           word.find('\0') == std::string_view::npos;
}

/// Without the links in that part of it which exists.
std::string withoutLinks(const std::string& path) {
    std::error_code error;
    const std::string real = std::filesystem::weakly_canonical(path, error).string();
    return error || real.empty() ? path : normalFolder(real);
}

bool hasDotDot(std::string_view path) {
    while (!path.empty())
        if (takeUntil(path, '/') == "..") return true;
    return false;
}

}  // namespace

Sandbox::Sandbox(std::string root) : root_(std::move(root)) {
    const std::string file = root_ + infoFile;
    if (::access(file.c_str(), F_OK) != 0) return;
    application_ = nameIn(readWholeFile(file).value_or(""));
    if (!isName(application_)) application_ = usualName;
}

std::string Sandbox::hostPath(std::string_view path) const {
    if (!isInside()) return std::string(path);
    return root_ + hostRoot + std::string(path);
}

std::optional<std::string> Sandbox::homeOnHost(const char* variable, const std::string& home) const {
    if (!isInside()) return std::nullopt;
    const char* const value = std::getenv((std::string("HOST_") + variable).c_str());
    if (value == nullptr || *value != '/' || hasDotDot(value)) return std::nullopt;
    std::string folder = normalFolder(value);
    const std::string sandboxes = pathIn(home, sandboxesBelow);
    std::vector<std::string> others = ownFolders(home);
    others.insert(others.end(), {sandboxes, withoutLinks(sandboxes)});
    for (const std::string& one : {folder, withoutLinks(folder)})
        if (one == "/" ||
            std::any_of(others.begin(), others.end(), [&](const std::string& other) { return isInFolder(one, other); }))
            return std::nullopt;
    return folder;
}

std::vector<std::string> Sandbox::ownFolders(const std::string& home) const {
    if (!isInside()) return {};
    const std::string realHome = withoutLinks(home);
    std::vector<std::string> folders;
    for (const std::string_view one : runtimeFolders) {
        std::string folder = root_ + std::string(one);
        if (!isInFolder(home, folder) && !isInFolder(realHome, folder)) folders.push_back(std::move(folder));
    }
    folders.push_back(pathIn(pathIn(home, sandboxesBelow), application_));
    if (realHome != home) folders.push_back(pathIn(pathIn(realHome, sandboxesBelow), application_));
    return folders;
}

bool Sandbox::isPartOf(std::string_view path, const std::string& home) const {
    const std::vector<std::string> own = ownFolders(home);
    return std::any_of(own.begin(), own.end(), [path](const std::string& folder) {
        return isInFolder(path, folder) || isInFolder(folder, path);
    });
}

}  // namespace zelk
