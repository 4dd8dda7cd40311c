// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace zelk {

/// The path of something that may be taken away: absolute, with a name at its end, and nothing in it that leads
/// elsewhere ("", ".", ".."). An empty path, a relative one, "/" and a path with a zero byte cannot be made into one,
/// so nothing that removes can be handed one of them. Slashes at the end are dropped: of a link the link itself is
/// meant.
class ItemPath {
public:
    /// Absent if `path` is none.
    static std::optional<ItemPath> from(std::string_view path);
    /// The same for what a walk found that began in `root` and followed no link behind it: whoever takes the item away
    /// follows none either, so a folder on the way that was since swapped for a link leads nowhere. If `path` is not
    /// below `root`, it is as if that were not known.
    static std::optional<ItemPath> below(std::string_view root, std::string_view path);

    /// Begins with a slash and does not end with one; single slashes between.
    const std::string& text() const { return text_; }
    /// The folder that holds it: "/" or without a slash at its end.
    std::string parent() const;
    std::string_view name() const;
    /// The part of parent() in which links are followed.
    std::string root() const;
    /// The rest of parent(), in which none may be: relative, and empty if there is no rest.
    std::string_view way() const;

    bool operator==(const ItemPath&) const = default;

private:
    explicit ItemPath(std::string text) : text_(std::move(text)), rootLength_(text_.rfind('/')) {}

    std::string text_;
    std::size_t rootLength_;  ///< of "/" it is 0
};

}  // namespace zelk
