// SPDX-License-Identifier: MIT
// The tree of a survey: one node per directory, never per file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Time.h"
#include "scan/NodeArena.h"

namespace zelk {

class FSNode;

/// An owning reference to a node, which keeps the whole tree around it. References may be copied and dropped on any
/// thread; the last one to a tree releases it at once.
class NodeRef {
public:
    NodeRef() = default;
    NodeRef(std::nullptr_t) {}
    explicit NodeRef(FSNode* node);
    NodeRef(const NodeRef& other) : NodeRef(other.node_) {}
    NodeRef(NodeRef&& other) noexcept : node_(std::exchange(other.node_, nullptr)) {}
    NodeRef& operator=(NodeRef other) noexcept {
        std::swap(node_, other.node_);
        return *this;
    }
    ~NodeRef();

    FSNode* get() const { return node_; }
    FSNode* operator->() const { return node_; }
    FSNode& operator*() const { return *node_; }
    explicit operator bool() const { return node_ != nullptr; }
    bool operator==(const NodeRef& other) const { return node_ == other.node_; }
    bool operator==(const FSNode* node) const { return node_ == node; }

private:
    FSNode* node_ = nullptr;
};

/// A directory. Written by one thread at a time: the worker that visits it, and after the walk the owner of the tree.
/// The nodes of a tree lie in its arena, each with its name behind its fields, and are linked to their parents, first
/// children and siblings: a survey has a hundred thousand of them. They are released together, with the last NodeRef to
/// any of them, also those that were removed.
class FSNode {
public:
    class Children;

    /// The top of a new tree.
    static NodeRef make(std::string_view name, TimePoint modified, bool isDirectory = true);

    FSNode(const FSNode&) = delete;
    FSNode& operator=(const FSNode&) = delete;

    /// The name in bytes; the whole absolute path on a scan root; empty on the synthetic top.
    std::string_view name() const { return {reinterpret_cast<const char*>(this + 1), nameLength_}; }
    bool isDirectory() const { return isDirectory_; }
    /// Whether the walk could not read it; it then has neither files nor children. Set by the worker that visits it.
    bool isUnreadable() const { return isUnreadable_; }
    void setUnreadable() { isUnreadable_ = 1; }
    /// Null for the top of a tree only.
    FSNode* parent() const { return parent_; }
    /// Removed from its parent's children.
    bool isRemoved() const { return previous_ == nullptr && parent_ != nullptr; }

    /// The subdirectories in order of delivery.
    inline Children children() const;
    FSNode* firstChild() const { return firstChild_; }
    /// Null if it is the last one; so it is for the top of a tree and for a node that was removed.
    FSNode* nextSibling() const { return next_; }
    /// The child, if it has exactly one.
    FSNode* onlyChild() const { return firstChild_ && !firstChild_->next_ ? firstChild_ : nullptr; }

    /// Adds a child behind the others.
    FSNode& append(std::string_view name, TimePoint modified, bool isDirectory = true);
    /// The same for a thread to which only a part of the tree belongs. `space` is that thread's, in this tree's arena.
    FSNode& append(NodeArena::Space& space, std::string_view name, TimePoint modified, bool isDirectory = true);
    /// Adds a node that was removed, here or elsewhere in this tree, behind the other children.
    FSNode& append(FSNode& removed);
    /// Removes `child`, with everything below it; does nothing if it is not among the children. Its parent pointer
    /// stays, so that paths below a removed folder can still be built.
    void remove(FSNode& child);

    /// The path in bytes, built on demand: the parent's path, if any, and the name.
    std::string fullPath() const;
    /// Like fullPath(), into a buffer that the caller reuses.
    void fullPath(std::string& path) const;

    NodeArena& arena() const { return NodeArena::of(this); }

    /// Bytes. No folder's name is longer; a root whose path is longer is not surveyed.
    static constexpr std::size_t maximumNameLength = 0xFFFF;

private:
    FSNode(std::uint16_t nameLength, TimePoint modified, bool isDirectory)
        : lastModified(modified), nameLength_(nameLength), isDirectory_(isDirectory), isUnreadable_(false) {}
    ~FSNode() = default;
    static FSNode& make(NodeArena::Space& space, std::string_view name, TimePoint modified, bool isDirectory);
    void link(FSNode& child);

    FSNode* parent_ = nullptr;
    FSNode* firstChild_ = nullptr;
    FSNode* next_ = nullptr;
    /// The first child's is the last child, so null only outside of any children.
    FSNode* previous_ = nullptr;

public:
    std::int64_t size = 0;  ///< allocated bytes of this and everything below; 0 until the roll-up
    TimePoint lastModified;
    std::int64_t ownFileBytes = 0;    ///< allocated bytes of the files directly in it, further hard links as 0
    std::int64_t fileCount : 38 = 0;  ///< files directly in it, further hard links included

private:
    std::uint64_t nameLength_ : 16;
    std::uint64_t isDirectory_ : 1;
    std::uint64_t isUnreadable_ : 1;

public:
    /// Set by the classifier: a row of the catalogue, counted from 1. A byte of its own: it is set while other threads
    /// may read the name.
    std::uint8_t reclaimCategory = 0;
};

/// The children of a node, from the first to the last. Whoever removes one while going through them must have left it.
class FSNode::Children {
public:
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = FSNode;
        using difference_type = std::ptrdiff_t;
        using pointer = FSNode*;
        using reference = FSNode&;

        Iterator() = default;
        explicit Iterator(FSNode* at) : at_(at) {}
        FSNode& operator*() const { return *at_; }
        FSNode* operator->() const { return at_; }
        Iterator& operator++() {
            at_ = at_->next_;
            return *this;
        }
        Iterator operator++(int) { return Iterator(std::exchange(at_, at_->next_)); }
        bool operator==(const Iterator&) const = default;

    private:
        FSNode* at_ = nullptr;
    };

    explicit Children(FSNode* first) : first_(first) {}
    Iterator begin() const { return Iterator(first_); }
    Iterator end() const { return Iterator(); }
    bool empty() const { return first_ == nullptr; }
    FSNode& front() const { return *first_; }
    /// Counts them.
    std::size_t size() const { return static_cast<std::size_t>(std::distance(begin(), end())); }

private:
    FSNode* first_;
};

FSNode::Children FSNode::children() const {
    return Children(firstChild_);
}

}  // namespace zelk
