// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk::cli {

/// The one line that tells how the program is called.
inline constexpr std::string_view usage = "usage: zelk-survey [--top N] [--json] [--ncdu FILE] [--] ROOT...";

/// What the words of a command line ask for. Paths are bytes.
struct Arguments {
    enum class Action : std::uint8_t { survey, help, version };

    Action action = Action::survey;
    std::vector<std::string> roots;   ///< as they were given; never empty for a survey
    std::uint64_t top = 10;           ///< rows of each list of the table; 0 leaves the lists out
    bool json = false;                ///< a JSON object instead of the table
    std::optional<std::string> ncdu;  ///< the file of the export; "-" is standard output
    std::string refusal;              ///< if not empty, a sentence that says what is wrong; ignore the rest

    bool operator==(const Arguments&) const = default;

    /// Whether the export takes the place of table and JSON on standard output.
    bool exportsToOutput() const { return ncdu == "-"; }
};

/// Reads the words after the program's name. Everything behind "--" is a root, and so is a word that does not begin
/// with
/// "-", wherever it stands, and "-" itself. Reads up to the first mistake, "--help" or "--version". Pure.
Arguments parseArguments(const std::vector<std::string>& words);

}  // namespace zelk::cli
