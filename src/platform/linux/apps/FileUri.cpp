// SPDX-License-Identifier: MIT
#include "platform/linux/apps/FileUri.h"

#include "platform/Text.h"

namespace zelk {

std::string fileUri(std::string_view path) {
    return "file://" + percentEncoded(path);
}

}  // namespace zelk
