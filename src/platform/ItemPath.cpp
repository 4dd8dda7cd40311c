// SPDX-License-Identifier: MIT
#include "platform/ItemPath.h"

#include <algorithm>

namespace zelk {

std::optional<ItemPath> ItemPath::from(std::string_view path) {
    if (!path.starts_with('/') || path.find('\0') != std::string_view::npos) return std::nullopt;
    std::string text;
    text.reserve(path.size());
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t start = path.find_first_not_of('/', at);
        if (start == std::string_view::npos) break;
        at = std::min(path.find('/', start), path.size());
        const std::string_view part = path.substr(start, at - start);
        if (part == "." || part == "..") return std::nullopt;
        text.append("/").append(part);
    }
    if (text.empty()) return std::nullopt;
    return ItemPath(std::move(text));
}

std::string ItemPath::parent() const {
    const std::size_t slash = text_.rfind('/');
    return slash == 0 ? "/" : text_.substr(0, slash);
}

std::string_view ItemPath::name() const {
    return std::string_view(text_).substr(text_.rfind('/') + 1);
}

}  // namespace zelk
