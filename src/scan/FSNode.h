// SPDX-License-Identifier: MIT
// The tree of a survey: one node per directory, never per file.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Time.h"

namespace zelk {

struct ReclaimCategory;
class FSNode;

/// An owning reference to a node. Counting is atomic: references may be copied and dropped on any thread.
class NodeRef {
public:
    NodeRef() = default;
    NodeRef(std::nullptr_t) {}
    explicit NodeRef(FSNode* node);
    NodeRef(const NodeRef& other);
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
    friend class FSNode;

    FSNode* node_ = nullptr;
};

/// A directory. Written by one thread at a time: the worker that visits it, and after the walk the owner of the tree. A
/// node owns its children; its parent pointer does not own, and is cleared when the parent is destroyed. A reference
/// keeps the nodes below alive but not those above: to build paths while another thread may release the tree, also hold
/// the top node. The name is stored behind the fields in the node's allocation, since a survey has a hundred thousand
/// nodes.
class FSNode {
public:
    static NodeRef make(std::string_view name, TimePoint lastModified, bool isDirectory = true);

    FSNode(const FSNode&) = delete;
    FSNode& operator=(const FSNode&) = delete;

    /// The name in bytes; the whole absolute path on a scan root; empty on the synthetic top.
    std::string_view name() const;
    bool isDirectory() const { return isDirectory_; }
    /// Whether the walk could not read it; it then has neither files nor children. Set by the worker that visits it.
    bool isUnreadable() const { return isUnreadable_; }
    void setUnreadable() { isUnreadable_ = 1; }
    /// Null for the synthetic top and for a node whose parent is gone.
    FSNode* parent() const { return parent_; }

    /// Appends `child` to `children` and becomes its parent. A removed node may be appended again, here or elsewhere.
    FSNode& append(NodeRef child);
    /// Removes `child` from `children`. Its parent pointer stays valid and from now on keeps this node alive, so that
    /// paths below a removed folder can still be built.
    void remove(FSNode& child);

    /// The path in bytes, built on demand: the parent's path, if any, and the name.
    std::string fullPath() const;
    /// Like fullPath(), into a buffer that the caller reuses.
    void fullPath(std::string& path) const;

    std::int64_t size = 0;          ///< allocated bytes of this and everything below; 0 until the roll-up
    std::vector<NodeRef> children;  ///< subdirectories in order of delivery; see append(), remove()
    const ReclaimCategory* reclaimCategory = nullptr;  ///< set by the classifier; a row of the catalogue
    TimePoint lastModified;
    std::int64_t ownFileBytes = 0;  ///< allocated bytes of the files directly in it, further hard links as 0
    std::int64_t fileCount = 0;     ///< files directly in it, further hard links included

private:
    friend class NodeRef;
    FSNode(std::uint32_t nameLength, TimePoint modified, bool isDirectory)
        : lastModified(modified),
          nameLength_(nameLength),
          isDirectory_(isDirectory),
          isUnreadable_(false),
          keepsParent_(false) {}
    ~FSNode() = default;
    static void release(FSNode* node);

    FSNode* parent_ = nullptr;
    std::atomic<std::uint32_t> references_{0};
    std::uint32_t nameLength_ : 29;
    std::uint32_t isDirectory_ : 1;
    std::uint32_t isUnreadable_ : 1;
    std::uint32_t keepsParent_ : 1;  ///< removed from its parent's children; keeps the parent alive
};

}  // namespace zelk
