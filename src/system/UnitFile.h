// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// What a unit of systemd says about itself.
struct UnitFile {
    std::string description;  ///< "Description"; UTF-8, may be empty
    /// The first word of the first "ExecStart", unquoted and without the prefixes that change how it is run; specifiers
    /// ("%h") as they stand. Empty if it starts nothing, as a timer.
    std::string program;
};

/// Parses any bytes as a unit file; ignores what it does not understand. The last "Description" wins; an empty
/// "ExecStart" makes the ones before it void.
UnitFile parseUnitFile(std::string_view text);

}  // namespace zelk
