// SPDX-License-Identifier: MIT
#include "ui/shell/linux/StartupId.h"

#include <charconv>

namespace zelk {

namespace {

constexpr std::string_view timeMark = "_TIME";
constexpr std::size_t pieceSize = 20;

}  // namespace

std::optional<std::uint32_t> timeOfStart(std::string_view startupId) {
    const std::size_t mark = startupId.rfind(timeMark);
    if (mark == std::string_view::npos) return std::nullopt;
    const std::string_view digits = startupId.substr(mark + timeMark.size());
    std::uint32_t time = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), time);
    // 0 is no time: to the server it means now.
    if (error != std::errc() || end != digits.data() + digits.size() || time == 0) return std::nullopt;
    return time;
}

std::vector<std::string> endOfStartup(std::string_view startupId) {
    std::string message = "remove: ID=\"";
    for (const char c : startupId) {
        if (c == '"' || c == '\\') message += '\\';
        message += c;
    }
    message += '"';
    message.resize((message.size() / pieceSize + 1) * pieceSize);
    std::vector<std::string> pieces;
    for (std::size_t at = 0; at < message.size(); at += pieceSize) pieces.push_back(message.substr(at, pieceSize));
    return pieces;
}

}  // namespace zelk
