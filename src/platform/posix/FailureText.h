// SPDX-License-Identifier: MIT
// Error messages for display, in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// A displayable form of a name: invalid UTF-8 becomes U+FFFD; characters that break the line or change the text
/// direction become visible marks.
std::string readableName(std::string_view bytes);

/// The system's message for an errno, in the user's language if the locale is set.
std::string systemText(int error);

/// The sentence, which is marked for translation in the context "Failure", with the name, readable, in the place of
/// "%1" and the reason in that of "%2", as in `“notes.txt” couldn’t be removed: Permission denied`.
std::string failureText(std::string_view sentence, std::string_view name, std::string_view reason = {});

}  // namespace zelk
