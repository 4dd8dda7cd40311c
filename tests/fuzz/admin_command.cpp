// SPDX-License-Identifier: MIT
// Gives arbitrary bytes, divided at NUL, to zelk-admin as its arguments. What it would run is made of its own words,
// and of at most those of the arguments, each checked here in another way.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "admin/AdminCommand.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

bool consistsOf(std::string_view word, std::string_view characters) {
    return !word.empty() && word.find_first_not_of(characters) == std::string_view::npos;
}

constexpr std::string_view digits = "0123456789";
constexpr std::string_view packageCharacters = "abcdefghijklmnopqrstuvwxyz0123456789+.-";
constexpr std::string_view configCharacters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-";

void requireConfig(const std::string& word) {
    require(consistsOf(word, configCharacters) && word[0] != '-' && word.size() < 256);
}

using Words = std::vector<std::string>;

void requireAccepted(const Words& arguments, const zelk::AdminCommand& command) {
    const std::string& verb = arguments.at(0);
    require(command.dropsCaches == (verb == "free-memory"));
    if (verb == "free-memory") {
        require(arguments.size() == 1 && command.programs.empty());
    } else if (verb == "delete-snapshot") {
        require(arguments.size() == 3 && command.programs.size() == 1);
        requireConfig(arguments[1]);
        require(consistsOf(arguments[2], digits) && arguments[2][0] != '0' && std::stoull(arguments[2]) <= UINT32_MAX);
        require(command.programs[0] == Words{"/usr/bin/snapper", "-c", arguments[1], "delete", "--sync", arguments[2]});
    } else if (verb == "thin-snapshots") {
        require(arguments.size() == 2 && command.programs.size() == 2);
        requireConfig(arguments[1]);
        for (const Words& program : command.programs)
            require(program.size() == 7 && program[0] == "/usr/bin/snapper" && program[2] == arguments[1]);
    } else {
        require(verb == "remove-package" && arguments.size() == 2);
        const std::string& name = arguments[1];
        require(consistsOf(name, packageCharacters) && name.size() > 1 && name.size() < 256);
        require(std::string_view("+.-").find(name[0]) == std::string_view::npos);
        require(command.programs == std::vector<Words>{{"/usr/bin/dpkg", "--remove", name}});
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Words arguments;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\0'), rest.size());
        arguments.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    const zelk::AdminCommand command = zelk::adminCommand(arguments);
    if (command.refusal.empty()) {
        requireAccepted(arguments, command);
    } else {
        require(!command.dropsCaches && command.programs.empty());
    }
    return 0;
}
