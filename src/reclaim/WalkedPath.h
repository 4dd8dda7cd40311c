// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "scan/FSNode.h"

namespace zelk {

class FileManager;

/// Tracks whether a text that grows and shrinks at its end contains `wanted`. Searches each byte once between its being
/// appended and cut off, so that a deep chain of folders named "Cache" costs no more than its length.
class ContainedText {
public:
    /// `wanted` must not be empty and must outlive this object.
    explicit ContainedText(std::string_view wanted) : wanted_(wanted) {}

    bool isIn(std::string_view text);
    /// Must be called whenever the text has been cut, with its new length.
    void cutTo(std::size_t length);

private:
    std::string_view wanted_;
    std::size_t searched_ = 0;             ///< no occurrence ends within this length, unless foundEnd_ says so
    std::optional<std::size_t> foundEnd_;  ///< where the first occurrence ends
};

/// The path of the current node of a walk, in one buffer that is reused for a hundred thousand nodes. Always equals the
/// node's fullPath(). Not thread-safe.
class WalkedPath {
public:
    explicit WalkedPath(const FSNode& node);

    const std::string& text() const { return text_; }

    /// Descends to a child of the current node.
    void enter(std::string_view name);
    /// Returns to the ancestor whose path has this length. Only text() and enter() may be called after that.
    void leaveTo(std::size_t length);

    bool isInsideApplicationSupport() { return applicationSupport_.isIn(text_); }
    /// Inside ".config" or ".cache", where applications on Linux keep their data.
    bool isInsideConfigOrCache() { return config_.isIn(text_) || cache_.isIn(text_); }
    bool isInsideUser() { return user_.isIn(text_); }
    /// Whether the node's parent folder contains `sibling` on disk. `name` is the node's own.
    bool hasBeside(std::string_view sibling, std::string_view name, FileManager& files);

private:
    void append(std::string_view name);
    void cutTo(std::size_t length);

    std::string text_;
    std::size_t parentLength_ = 0;
    ContainedText applicationSupport_{"/Application Support/"};
    ContainedText config_{"/.config/"};
    ContainedText cache_{"/.cache/"};
    ContainedText user_{"/User/"};
};

}  // namespace zelk
