// SPDX-License-Identifier: MIT
#include "platform/CommandProgram.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace zelk {

std::string_view fileNameOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

bool isSharedLauncher(std::string_view program) {
    constexpr std::array names{
        "bash",         "dash",  "dbus-launch", "dbus-send",   "electron",  "env",      "flatpak", "fish",
        "gapplication", "gjs",   "gtk-launch",  "java",        "kioclient", "kstart",   "ksh",     "lua",
        "mono",         "node",  "nodejs",      "perl",        "pkexec",    "python",   "ruby",    "sh",
        "snap",         "steam", "sudo",        "systemd-run", "wine",      "xdg-open", "zsh"};
    std::string name(fileNameOf(program));
    // "python3.11", "lua5.4", "perl5.36.0"
    while (!name.empty() && (std::isdigit(static_cast<unsigned char>(name.back())) != 0 || name.back() == '.'))
        name.pop_back();
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::vector<std::string> withoutEnv(std::vector<std::string> words) {
    if (words.empty() || fileNameOf(words.front()) != "env") return words;
    const auto program = std::find_if(words.begin() + 1, words.end(), [](const std::string& word) {
        return word != "-S" && word.find('=') == std::string::npos;
    });
    words.erase(words.begin(), program);
    return words;
}

}  // namespace zelk
