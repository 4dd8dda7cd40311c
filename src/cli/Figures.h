// SPDX-License-Identifier: MIT
// Numbers as people read them, in English.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zelk::cli {

/// "1,234,567"; not negative.
std::string grouped(std::int64_t count);
/// "1 file", "2,345 files": the noun takes an "s" unless there is one.
std::string counted(std::int64_t count, std::string_view noun);
/// What stands for the files that lie directly in a folder: "(1 file)", "(2 files)". Without digit grouping, since
/// other programs read it too.
std::string looseFiles(std::int64_t count);

}  // namespace zelk::cli
