// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// What zelk-admin does for its arguments.
struct AdminCommand {
    std::string refusal;       ///< why it does nothing, as one sentence; empty if the arguments are accepted
    bool dropsCaches = false;  ///< writes to disk what is unwritten, then has the kernel drop its caches
    /// The programs that it runs, one after the other: an absolute path, then the arguments. No shell reads them.
    std::vector<std::vector<std::string>> programs;

    bool operator==(const AdminCommand&) const = default;
};

/// Every verb. Each has an action of its own in packaging/polkit.
const std::vector<std::string_view>& adminVerbs();

/// Decides over the arguments of zelk-admin (without its own name), which are any bytes from anybody. It accepts
///
/// - `free-memory`
/// - `delete-snapshot CONFIG NUMBER`
/// - `thin-snapshots CONFIG`
/// - `remove-package NAME`
///
/// with CONFIG of letters, digits, "_" and "-", not beginning with "-"; NUMBER from 1 to 4294967295, without zeros in
/// front; NAME of lower-case letters, digits, "+", "." and "-", at least two, beginning with a letter or a digit.
/// CONFIG and NAME have at most 255 bytes.
AdminCommand adminCommand(const std::vector<std::string>& arguments);

/// The whole environment of the programs, as NAME=value.
const std::vector<std::string>& adminEnvironment();

}  // namespace zelk
