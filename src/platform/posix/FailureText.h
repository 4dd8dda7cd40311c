// SPDX-License-Identifier: MIT
// What a person reads when something could not be done. UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// The bytes of a name as text: what is no UTF-8 becomes U+FFFD, and what would break the line or turn the direction of
/// what follows becomes a visible mark.
std::string readableName(std::string_view bytes);

/// The system's own words for an errno, in the user's language where the locale has been set.
std::string systemText(int error);

/// `“name” WHAT: REASON`, as in `“notes.txt” couldn’t be removed: Permission denied`.
std::string failureText(std::string_view name, std::string_view what, std::string_view reason);

}  // namespace zelk
