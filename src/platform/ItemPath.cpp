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

std::optional<ItemPath> ItemPath::below(std::string_view root, std::string_view path) {
    std::optional<ItemPath> item = from(path);
    if (!item) return item;
    const std::optional<ItemPath> start = from(root);
    const bool isTop = !root.empty() && root.find_first_not_of('/') == std::string_view::npos;
    if (!start && !isTop) return item;
    const std::string above = start ? start->text_ : std::string();
    if (item->text_.starts_with(above + "/")) item->rootLength_ = above.size();
    return item;
}

std::string ItemPath::parent() const {
    const std::size_t slash = text_.rfind('/');
    return slash == 0 ? "/" : text_.substr(0, slash);
}

std::string_view ItemPath::name() const {
    return std::string_view(text_).substr(text_.rfind('/') + 1);
}

std::string ItemPath::root() const {
    return rootLength_ == 0 ? "/" : text_.substr(0, rootLength_);
}

std::string_view ItemPath::way() const {
    const std::size_t slash = text_.rfind('/');
    if (slash == rootLength_) return {};
    return std::string_view(text_).substr(rootLength_ + 1, slash - rootLength_ - 1);
}

}  // namespace zelk
