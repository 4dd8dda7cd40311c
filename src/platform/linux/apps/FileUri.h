// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// The "file:" URI of an absolute path: every byte but letters, digits and "-._~/" percent-encoded, so that any path is
/// plain text in it.
std::string fileUri(std::string_view path);

}  // namespace zelk
