// SPDX-License-Identifier: MIT
#include "platform/CommandProgram.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>

namespace zelk {

std::string_view fileNameOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

namespace {

/// The name of the program without a version: "python3.11", "lua5.4", "perl5.36.0".
std::string_view unversionedName(std::string_view program) {
    std::string_view name = fileNameOf(program);
    while (!name.empty() && (std::isdigit(static_cast<unsigned char>(name.back())) != 0 || name.back() == '.'))
        name.remove_suffix(1);
    return name;
}

}  // namespace

bool isSharedLauncher(std::string_view program) {
    constexpr std::array names{
        "bash",         "dash",  "dbus-launch", "dbus-send",   "electron",  "env",      "flatpak", "fish",
        "gapplication", "gjs",   "gtk-launch",  "java",        "kioclient", "kstart",   "ksh",     "lua",
        "mono",         "node",  "nodejs",      "perl",        "pkexec",    "python",   "ruby",    "sh",
        "snap",         "steam", "sudo",        "systemd-run", "wine",      "xdg-open", "zsh"};
    return std::find(names.begin(), names.end(), unversionedName(program)) != names.end();
}

std::string interpretedFile(const std::vector<std::string>& words) {
    constexpr std::array names{"bash", "java", "mono", "node", "perl", "python", "ruby", "sh", "wine"};
    if (words.size() < 2) return {};
    const std::string_view interpreter = unversionedName(words[0]);
    if (std::find(names.begin(), names.end(), interpreter) == names.end()) return {};
    const std::size_t file = interpreter == "java" && words[1] == "-jar" ? 2 : 1;
    return file < words.size() && !words[file].starts_with('-') ? words[file] : std::string();
}

std::vector<std::string> withoutEnv(std::vector<std::string> words) {
    if (words.empty() || fileNameOf(words.front()) != "env") return words;
    const auto program = std::find_if(words.begin() + 1, words.end(), [](const std::string& word) {
        return word != "-S" && word.find('=') == std::string::npos;
    });
    words.erase(words.begin(), program);
    return words;
}

std::string toolName(const std::vector<std::string>& words) {
    const std::vector<std::string> command = withoutEnv(words);
    const std::vector<std::string>& named = command.empty() ? words : command;
    return named.empty() ? std::string() : std::string(fileNameOf(named.front()));
}

}  // namespace zelk
