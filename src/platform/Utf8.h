// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace zelk {

/// Whether all of `bytes` is UTF-8 in its shortest form, without surrogates and nothing beyond U+10FFFF.
bool isUtf8(std::string_view bytes);

}  // namespace zelk
