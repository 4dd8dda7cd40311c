// SPDX-License-Identifier: MIT
#include "platform/linux/apps/FileUri.h"

namespace zelk {

std::string fileUri(std::string_view path) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    std::string uri = "file://";
    for (const char c : path) {
        if (plain.find(c) != std::string_view::npos) {
            uri += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        uri += '%';
        uri += digits[byte >> 4];
        uri += digits[byte & 0xF];
    }
    return uri;
}

}  // namespace zelk
