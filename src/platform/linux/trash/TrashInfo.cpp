// SPDX-License-Identifier: MIT
#include "platform/linux/trash/TrashInfo.h"

#include <algorithm>
#include <array>

#include "platform/Text.h"

namespace zelk {
namespace {

/// Anything longer is a name with a dot in it, not an extension.
constexpr std::size_t longestExtension = 32;

/// The extension with its dot; empty for names such as ".hidden".
std::string_view extensionOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || name.size() - dot > longestExtension) return {};
    return name.substr(dot);
}

std::string_view cutTo(std::string_view name, std::size_t bytes) {
    if (name.size() <= bytes) return name;
    const auto continues = [name](std::size_t at) { return (static_cast<unsigned char>(name[at]) & 0xC0U) == 0x80; };
    std::size_t end = bytes;
    while (end > 0 && bytes - end < 3 && continues(end)) --end;
    // Longer sequences are not UTF-8 and may be cut anywhere.
    return name.substr(0, end == 0 || continues(end) ? bytes : end);
}

}  // namespace

std::string trashInfoText(std::string_view path, const std::tm& deleted) {
    std::string text = "[Trash Info]\nPath=" + percentEncoded(path);
    std::array<char, 64> date{};
    const std::size_t length = std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &deleted);
    return text.append("\nDeletionDate=").append(date.data(), length).append("\n");
}

std::string trashName(std::string_view name, std::size_t number, std::size_t limit) {
    const std::string suffix = number == 1 ? "" : "." + std::to_string(number);
    if (number == 1 && name.size() <= limit) return std::string(name);
    std::string_view extension = extensionOf(name);
    if (suffix.size() + extension.size() >= limit) extension = {};
    const std::size_t room = limit - std::min(limit, suffix.size() + extension.size());
    const std::string_view stem = cutTo(name.substr(0, name.size() - extension.size()), room);
    return std::string(stem).append(suffix).append(extension);
}

}  // namespace zelk
