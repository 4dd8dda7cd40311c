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

/// Owning reference to a node. Counting is atomic: references may be taken and dropped on any thread.
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

/// A directory. It is written by one thread at a time: by the worker that visits it, and when the walk is over by
/// whoever owns the tree. A node owns its children; its parent pointer does not own and is cleared when the parent
/// goes. A reference to a node keeps what is below it but not what is above: who asks for paths while another thread
/// may release the tree holds on to the top as well. The name stands in the node's own allocation, behind the fields: a
/// hundred thousand of them are one survey.
class FSNode {
public:
    static NodeRef make(std::string_view name, TimePoint lastModified, bool isDirectory = true);

    FSNode(const FSNode&) = delete;
    FSNode& operator=(const FSNode&) = delete;

    /// The leaf name in bytes; the whole absolute path on a scan root; empty on the synthetic top.
    std::string_view name() const;
    bool isDirectory() const { return isDirectory_; }
    /// Nothing above: the synthetic top, or a node whose parent is gone.
    FSNode* parent() const { return parent_; }

    /// Takes `child` in at the end of `children` and becomes its parent.
    FSNode& append(NodeRef child);
    /// Takes `child` out of `children`. Its parent pointer still holds, and from here on keeps this node alive: whoever
    /// removed a folder may go on to name what was in it.
    void remove(FSNode& child);

    /// The path in bytes, built on demand: the name, behind the parent's path where there is one.
    std::string fullPath() const;
    /// The same into a buffer that the caller reuses.
    void fullPath(std::string& path) const;

    std::int64_t size = 0;          ///< allocated bytes of this and everything below; 0 until the roll-up
    std::vector<NodeRef> children;  ///< subdirectories in the order in which they were met; see append(), remove()
    const ReclaimCategory* reclaimCategory = nullptr;  ///< set by the classifier; a row of the catalogue
    TimePoint lastModified;
    std::int64_t ownFileBytes = 0;  ///< allocated bytes of the files directly in it, further hard links as 0
    std::int64_t fileCount = 0;     ///< files directly in it, further hard links included

private:
    friend class NodeRef;
    FSNode(std::uint32_t nameLength, TimePoint modified, bool isDirectory)
        : lastModified(modified), nameLength_(nameLength), isDirectory_(isDirectory), keepsParent_(false) {}
    ~FSNode() = default;
    static void release(FSNode* node);

    FSNode* parent_ = nullptr;
    std::atomic<std::uint32_t> references_{0};
    std::uint32_t nameLength_ : 30;
    std::uint32_t isDirectory_ : 1;
    std::uint32_t keepsParent_ : 1;  ///< taken out of its parent's children, which it now keeps alive
};

}  // namespace zelk
