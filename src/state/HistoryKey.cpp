// SPDX-License-Identifier: MIT
#include "state/HistoryKey.h"

#include <string_view>

#include "platform/Text.h"
#include "platform/Utf8.h"

namespace zelk {
namespace {

constexpr std::string_view scheme = "file://";
constexpr EscapeForm percentEscape{"%", "0123456789ABCDEF", 2};

}  // namespace

std::string historyKey(const std::string& path) {
    if (isUtf8(path) && !path.starts_with(scheme)) return path;
    return std::string(scheme) + percentEncoded(path);
}

std::string pathOfHistoryKey(const std::string& key) {
    if (key.starts_with(scheme)) {
        std::string path = unescaped(std::string_view(key).substr(scheme.size()), percentEscape);
        if (historyKey(path) == key) return path;
    }
    return key;
}

}  // namespace zelk
