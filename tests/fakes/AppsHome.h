// SPDX-License-Identifier: MIT
// Applications in memory: the bundles of a Mac, and those of a Linux desktop with the tools that know and remove them.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "fakes/FakePlatform.h"

namespace zelk::fakes {

/// A bundle in "/Applications" of so many bytes; without an identifier it has no description.
inline void addBundle(FakePlatform& machine, const std::string& name, std::uint64_t bytes,
                      const std::string& identifier = {}) {
    const std::string bundle = "/Applications/" + name + ".app";
    machine.directories.file(bundle + "/Contents/MacOS/" + name, bytes, 1'000);
    machine.files.addFile(bundle + "/Contents/MacOS/" + name, {}, bytes);
    if (identifier.empty()) return;
    machine.files.addFile(bundle + "/Contents/Info.plist",
                          "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" +
                              identifier + "</string></dict></plist>");
}

inline std::string applicationEntry(const std::string& name, const std::string& exec, const std::string& more = {}) {
    return "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + exec + "\n" + more;
}

/// A Linux desktop whose tools hold what a test gives them and remove what they are told to. Change it only while no
/// task runs.
class LinuxApps {
public:
    struct Package {
        std::string name;
        std::uint64_t units = 1'000;  ///< of 1,024 bytes
        std::string depends = {};
        std::string priority = "optional";
        std::string essential = "no";
    };

    /// `machine` must outlive it.
    explicit LinuxApps(FakePlatform& machine) : machine_(machine) {
        machine.system = SystemKind::desktopLinux;
        machine.locations.xdg =
            XdgHomes{home + "/.local/share", home + "/.config", home + "/.cache", home + "/.local/state"};
        machine.locations.programs = {"/usr/bin"};
        machine.locations.sharedData = {"/usr/local/share", "/usr/share"};
        for (const char* tool : {"flatpak", "snap", "dpkg-query", "apt-get"})
            machine.files.addFile(std::string("/usr/bin/") + tool);
        machine.files.addFolder(home);
        machine.processes.outcome = [this](const FakeProcesses::Call& call) { return answer(call); };
    }

    const std::string home = "/home/me";

    std::vector<Package> packages;
    std::map<std::string, std::string> owners;  ///< packages by file
    /// What else apt-get would remove with any package.
    std::vector<std::string> alongside;
    /// What any removal answers; it removes nothing unless that is success.
    ChildOutcome removal;
    bool removes = true;  ///< whether it removes anything at all

    std::string entryOf(const std::string& id) const { return "/usr/share/applications/" + id + ".desktop"; }

    /// A package with an entry in the menus, whose program has the package's name and is its own.
    void addPackaged(const Package& package, const std::string& name, const std::string& id) {
        packages.push_back(package);
        const std::string program = "/usr/bin/" + package.name;
        owners[program] = package.name;
        addEntry(package.name, name, id, program);
    }
    void addEntry(const std::string& package, const std::string& name, const std::string& id, const std::string& exec,
                  const std::string& more = {}) {
        machine_.files.addFile(entryOf(id), applicationEntry(name, exec + " %U", more));
        owners[entryOf(id)] = package;
    }

    std::string flatpakFolder(bool isUsers) const {
        return isUsers ? home + "/.local/share/flatpak" : std::string("/var/lib/flatpak");
    }
    std::string deployedFlatpak(const std::string& id, bool isUsers = true) const {
        return flatpakFolder(isUsers) + "/app/" + id + "/x86_64/stable/abc";
    }
    void addFlatpak(const std::string& id, const std::string& name, std::uint64_t bytes, bool isUsers = true) {
        const std::string folder = flatpakFolder(isUsers);
        machine_.files.addFile(deployedFlatpak(id, isUsers) + "/files/bin/run", {}, bytes);
        machine_.files.addLink(folder + "/app/" + id + "/x86_64/stable/active", deployedFlatpak(id, isUsers));
        machine_.files.addLink(folder + "/app/" + id + "/current", folder + "/app/" + id + "/x86_64/stable");
        machine_.files.addFile(folder + "/exports/share/applications/" + id + ".desktop",
                               applicationEntry(name, "/usr/bin/flatpak run " + id, "X-Flatpak=" + id + "\n"));
        flatpaks_[{id, isUsers}] = bytes;
    }

    std::string snapFile(const std::string& name, const std::string& revision) const {
        return "/var/lib/snapd/snaps/" + name + "_" + revision + ".snap";
    }
    void addSnap(const std::string& name, const std::string& title, const std::string& revision, std::uint64_t bytes) {
        machine_.files.addFile(snapFile(name, revision), {}, bytes);
        machine_.files.addFolder("/snap/" + name + "/" + revision);
        machine_.files.addLink("/snap/" + name + "/current", "/snap/" + name + "/" + revision);
        machine_.files.addFile("/var/lib/snapd/desktop/applications/" + name + "_" + name + ".desktop",
                               applicationEntry(title, "/snap/bin/" + name));
    }

    static std::string appImageStart() { return std::string("\177ELF\2\1\1\0AI\2", 11) + "and so on"; }
    void addAppImage(const std::string& path, std::uint64_t bytes) {
        machine_.files.addFile(path, appImageStart(), bytes);
    }
    std::string ownEntry(const std::string& id) const { return home + "/.local/share/applications/" + id + ".desktop"; }
    void addOwnEntry(const std::string& id, const std::string& name, const std::string& exec,
                     const std::string& more = {}) {
        machine_.files.addFile(ownEntry(id), applicationEntry(name, exec, more));
    }

    /// One of each kind, largest first: "Studio" (package), "Orrery" (user's flatpak), "Chat" (snap), "Sonata"
    /// (AppImage), "Tidepool" (unpacked), "Maps" (flatpak of all users).
    void fill() {
        addPackaged({"studio", 900'000}, "Studio", "org.sample.Studio");
        addFlatpak("org.sample.Orrery", "Orrery", 500'000'000);
        addSnap("chat", "Chat", "42", 300'000'000);
        addAppImage(home + "/Applications/Sonata.AppImage", 90'000'000);
        machine_.files.addFile(home + "/Tidepool/bin/tidepool", "program", 60'000'000);
        addOwnEntry("org.sample.Tidepool", "Tidepool", home + "/Tidepool/bin/tidepool");
        addFlatpak("org.sample.Maps", "Maps", 20'000'000, false);
    }

    /// The programs that removed something, or asked to, with what they were told.
    std::vector<std::string> removals() const {
        std::vector<std::string> lines;
        for (const FakeProcesses::Call& call : machine_.processes.calls())
            if (isRemoval(call)) lines.push_back(lineOf(call));
        return lines;
    }

    static std::string lineOf(const FakeProcesses::Call& call) {
        std::string line = call.executable;
        for (const std::string& word : call.arguments) line += " " + word;
        return line;
    }

private:
    static bool isRemoval(const FakeProcesses::Call& call) {
        return call.executable == "/usr/bin/pkexec" ||
               (call.executable == "/usr/bin/flatpak" && call.arguments.front() == "uninstall") ||
               (call.executable == "/usr/bin/snap" && call.arguments.front() == "remove");
    }

    ChildOutcome answer(const FakeProcesses::Call& call) {
        if (isRemoval(call)) {
            const std::string name = lastWord(call.arguments.back());
            if (removes && !removal.launchFailure && removal.exitStatus == 0) remove(call.executable, name);
            return removal;
        }
        if (!machine_.files.exists(call.executable)) return {"No such file or directory", 0, {}};
        if (call.executable == "/usr/bin/dpkg-query")
            return {std::nullopt, 0, call.arguments.front() == "-S" ? ownersAsTold(call.arguments) : packagesAsTold()};
        if (call.executable == "/usr/bin/apt-get") return {std::nullopt, 0, simulated(call.arguments.back())};
        if (call.executable == "/usr/bin/flatpak") {
            const auto found = flatpaks_.find({call.arguments.back(), call.arguments[1] == "--user"});
            if (found == flatpaks_.end()) return {std::nullopt, 1, "error: not installed\n"};
            return {std::nullopt, 0, std::to_string(found->second) + "\n"};
        }
        return {};
    }

    static std::string lastWord(const std::string& line) { return line.substr(line.rfind(' ') + 1); }

    void remove(const std::string& tool, const std::string& name) {
        FakeFileManager& files = machine_.files;
        if (tool == "/usr/bin/flatpak") {
            const std::string place = name.substr(0, name.find('/', name.find('/') + 1));  // "app/ID"
            for (const bool isUsers : {true, false}) files.erase(flatpakFolder(isUsers) + "/" + place);
        } else if (tool == "/usr/bin/snap") {
            for (const std::string& file : files.list("/var/lib/snapd/snaps").value_or(std::vector<std::string>()))
                if (file.starts_with(name + "_")) files.erase("/var/lib/snapd/snaps/" + file);
            files.erase(home + "/snap/" + name);
        } else {
            for (const auto& [entry, owner] : owners)
                if (owner == name) files.erase(entry);
        }
    }

    /// Of the paths that are asked for; one of them is a pattern.
    std::string ownersAsTold(const std::vector<std::string>& asked) const {
        const auto isAsked = [&](const std::string& file) {
            return std::any_of(asked.begin(), asked.end(), [&](const std::string& path) {
                const std::size_t star = path.find('*');
                return path == file || (star != std::string::npos && file.starts_with(path.substr(0, star)) &&
                                        file.ends_with(path.substr(star + 1)));
            });
        };
        std::string text;
        for (const auto& [file, owner] : owners)
            if (isAsked(file)) text += owner + ": " + file + "\n";
        return text;
    }
    std::string packagesAsTold() const {
        std::string text;
        for (const Package& one : packages)
            text += one.name + "\tinstalled\t" + one.essential + "\t\t" + one.priority + "\t" +
                    std::to_string(one.units) + "\t\t\t" + one.depends + "\n";
        return text;
    }
    std::string simulated(const std::string& package) const {
        std::string text = "NOTE: This is only a simulation!\nReading package lists...\n";
        for (const std::string& other : alongside) text += "Remv " + other + " [1.0]\n";
        return text + "Remv " + package + " [2.0]\n";
    }

    FakePlatform& machine_;
    std::map<std::pair<std::string, bool>, std::uint64_t> flatpaks_;
};

}  // namespace zelk::fakes
