// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "scan/FSNode.h"

namespace zelk {

class FileManager;

/// Whether a text that grows and shrinks at its end contains another one. Each byte is looked at once between being
/// put there and being taken away, so that a chain of folders called "Cache" costs no more than its length.
class ContainedText {
public:
    /// `wanted` is not empty and outlives this.
    explicit ContainedText(std::string_view wanted) : wanted_(wanted) {}

    bool isIn(std::string_view text);
    /// The text has been cut to `length`. To be called on every cut.
    void cutTo(std::size_t length);

private:
    std::string_view wanted_;
    std::size_t searched_ = 0;             ///< no occurrence ends within this length, unless foundEnd_ says so
    std::optional<std::size_t> foundEnd_;  ///< where the first occurrence ends
};

/// The path of the node at hand, in one buffer that follows a walk: a hundred thousand paths are not built anew each.
/// It always equals the node's fullPath(). Not thread-safe.
class WalkedPath {
public:
    explicit WalkedPath(const FSNode& node);

    const std::string& text() const { return text_; }

    /// Goes down to a child of the node at hand.
    void enter(std::string_view name);
    /// Back to the ancestor whose path has this length. It may then be entered anew, and asked nothing but its text.
    void leaveTo(std::size_t length);

    bool isInsideApplicationSupport() { return applicationSupport_.isIn(text_); }
    /// In a folder called ".config" or ".cache", where applications on Linux keep what is theirs.
    bool isInsideConfigOrCache() { return config_.isIn(text_) || cache_.isIn(text_); }
    bool isInsideUser() { return user_.isIn(text_); }
    /// Whether something called `sibling` stands beside the node on disk. `name` is the node's own.
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
