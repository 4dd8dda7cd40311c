// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

namespace zelk {

/// The path of an existing file or folder without links in it; absent if it leads nowhere.
inline std::optional<std::string> resolvedPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    if (!real) return std::nullopt;
    return real.get();
}

}  // namespace zelk
