// SPDX-License-Identifier: MIT
#include "cli/Figures.h"

#include <cstddef>

namespace zelk::cli {

std::string grouped(std::int64_t count) {
    constexpr std::size_t group = 3;
    const std::string digits = std::to_string(count);
    std::string text;
    for (std::size_t at = 0; at < digits.size(); ++at) {
        if (at > 0 && (digits.size() - at) % group == 0) text += ',';
        text += digits[at];
    }
    return text;
}

std::string counted(std::int64_t count, std::string_view noun) {
    return grouped(count).append(" ").append(noun).append(count == 1 ? "" : "s");
}

std::string looseFiles(std::int64_t count) {
    return "(" + std::to_string(count) + (count == 1 ? " file)" : " files)");
}

}  // namespace zelk::cli
