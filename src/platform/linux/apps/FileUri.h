// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// The "file:" URI of an absolute path, every byte except unreserved characters percent-encoded.
std::string fileUri(std::string_view path);

}  // namespace zelk
