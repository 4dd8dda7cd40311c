// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace zelk {

/// The path of an item that may be removed: absolute, ending in a name, without empty, "." or ".." components. Empty
/// and relative paths, "/" and paths with a zero byte cannot be constructed, so no removing function can receive them.
/// Trailing slashes are dropped, so a link always means the link itself.
class ItemPath {
public:
    /// Absent if `path` is not such a path.
    static std::optional<ItemPath> from(std::string_view path);
    /// Like from(), for an item found by a walk that started at `root` and followed no link below it. Whoever removes
    /// the item then follows none either, so a parent folder that was swapped for a link since then leads nowhere. A
    /// `root` that does not contain `path` is ignored.
    static std::optional<ItemPath> below(std::string_view root, std::string_view path);

    /// Starts with a slash, has single slashes and no trailing one.
    const std::string& text() const { return text_; }
    /// The parent folder: "/" or a path without a trailing slash.
    std::string parent() const;
    std::string_view name() const;
    /// The part of parent() in which links may be followed.
    std::string root() const;
    /// The rest of parent(), in which links are refused: relative, possibly empty.
    std::string_view way() const;

    bool operator==(const ItemPath&) const = default;

private:
    explicit ItemPath(std::string text) : text_(std::move(text)), rootLength_(text_.rfind('/')) {}

    std::string text_;
    std::size_t rootLength_;  ///< length of root(), 0 for "/"
};

}  // namespace zelk
