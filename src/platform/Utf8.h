// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace zelk {

/// Whether `bytes` is valid UTF-8: shortest forms only, no surrogates, nothing beyond U+10FFFF.
bool isUtf8(std::string_view bytes);

}  // namespace zelk
