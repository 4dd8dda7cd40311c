// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "fakes/TestFiles.h"
#include "platform/linux/Sandbox.h"
#include "zoo/TempFolder.h"

namespace zelk::fakes {

/// The root of a machine in a temporary folder, with the home "home/me" in it and what Flatpak puts into a sandbox.
class FakeSandbox {
public:
    FakeSandbox() {
        std::filesystem::create_directories(home);
        describe("[Application]\nname=io.github.zelk.Zelk\nruntime=runtime/org.kde.Platform/x86_64/6.8\n");
    }

    /// Writes "/.flatpak-info".
    void describe(std::string_view text) { writeFile(root + "/.flatpak-info", text); }
    /// From now on no new Sandbox is one.
    void leave() { std::filesystem::remove(root + "/.flatpak-info"); }
    /// Shows the system of the host in "/run/host".
    void showHost() {
        std::filesystem::create_directories(root + "/run/host/etc");
        std::filesystem::create_directories(root + "/run/host/usr");
    }

    Sandbox sandbox() const { return Sandbox(root); }

private:
    zoo::TempFolder folder_;

public:
    const std::string root = folder_.path();
    const std::string home = root + "/home/me";
    const std::string own = home + "/.var/app/io.github.zelk.Zelk";
};

}  // namespace zelk::fakes
