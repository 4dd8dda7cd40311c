// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelk {

/// The path of something that may be taken away: absolute, with a name at its end, and nothing in it that leads
/// elsewhere ("", ".", ".."). An empty path, a relative one, "/" and a path with a zero byte cannot be made into one,
/// so nothing that removes can be handed one of them. Slashes at the end are dropped: of a link the link itself is
/// meant.
class ItemPath {
public:
    /// Absent if `path` is none.
    static std::optional<ItemPath> from(std::string_view path);

    /// Begins with a slash and does not end with one; single slashes between.
    const std::string& text() const { return text_; }
    /// The folder that holds it: "/" or without a slash at its end.
    std::string parent() const;
    std::string_view name() const;

    bool operator==(const ItemPath&) const = default;

private:
    explicit ItemPath(std::string text) : text_(std::move(text)) {}

    std::string text_;
};

}  // namespace zelk
