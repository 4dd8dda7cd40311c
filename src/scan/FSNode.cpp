// SPDX-License-Identifier: MIT
#include "scan/FSNode.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace zelk {

NodeRef::NodeRef(FSNode* node) : node_(node) {
    if (node_ != nullptr) node_->references_.fetch_add(1, std::memory_order_relaxed);
}

NodeRef::NodeRef(const NodeRef& other) : NodeRef(other.node_) {}

NodeRef::~NodeRef() {
    if (node_ != nullptr && node_->references_.fetch_sub(1, std::memory_order_acq_rel) == 1) FSNode::release(node_);
}

NodeRef FSNode::make(std::string_view name, TimePoint lastModified, bool isDirectory) {
    void* memory = ::operator new(sizeof(FSNode) + name.size());
    auto* node = new (memory) FSNode(static_cast<std::uint32_t>(name.size()), lastModified, isDirectory);
    if (!name.empty()) std::memcpy(static_cast<char*>(memory) + sizeof(FSNode), name.data(), name.size());
    return NodeRef(node);
}

std::string_view FSNode::name() const {
    return {reinterpret_cast<const char*>(this) + sizeof(FSNode), nameLength_};
}

FSNode& FSNode::append(NodeRef child) {
    NodeRef formerParent;
    if (child->keepsParent_) {
        // A removed node keeps its parent alive. As its child again, the two would keep each other alive forever.
        formerParent = NodeRef(child->parent_);
        child->parent_->references_.fetch_sub(1, std::memory_order_relaxed);  // formerParent holds another
        child->keepsParent_ = false;
    }
    child->parent_ = this;
    return *children.emplace_back(std::move(child));
}

void FSNode::remove(FSNode& child) {
    const NodeRef held(&child);
    if (std::erase(children, held) == 0) return;
    child.keepsParent_ = true;
    references_.fetch_add(1, std::memory_order_relaxed);
}

// Folders may be nested to any depth, so neither paths nor release may recurse.

void FSNode::fullPath(std::string& path) const {
    // Measure first, then write from the end: at most one allocation.
    const auto wantsSlash = [](const FSNode& above) { return above.nameLength_ != 0 && above.name().back() != '/'; };
    std::size_t length = nameLength_;
    for (const FSNode* node = this; node->parent_ != nullptr && node->parent_->nameLength_ != 0; node = node->parent_)
        length += node->parent_->nameLength_ + (wantsSlash(*node->parent_) ? 1 : 0);
    path.resize(length);
    char* end = path.data() + length;
    const auto prepend = [&end](std::string_view text) {
        end -= text.size();
        std::copy(text.begin(), text.end(), end);
    };
    prepend(name());
    for (const FSNode* node = this; node->parent_ != nullptr && node->parent_->nameLength_ != 0; node = node->parent_) {
        if (wantsSlash(*node->parent_)) prepend("/");
        prepend(node->parent_->name());
    }
}

std::string FSNode::fullPath() const {
    std::string path;
    fullPath(path);
    return path;
}

void FSNode::release(FSNode* node) {
    NodeRef keptParent;
    if (node->keepsParent_) {
        keptParent = NodeRef(node->parent_);
        node->parent_->references_.fetch_sub(
            1, std::memory_order_relaxed);  // never the last one: keptParent holds another
    }
    // A list of unreferenced nodes, linked through their parent pointers, so that releasing needs no memory.
    node->parent_ = nullptr;
    while (node != nullptr) {
        FSNode* next = node->parent_;
        for (NodeRef& reference : node->children) {
            FSNode* child = std::exchange(reference.node_, nullptr);
            if (child == nullptr) continue;
            // Other holders of the child see it without a parent from now on.
            if (child->parent_ == node) child->parent_ = nullptr;
            if (child->references_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
                child->parent_ = next;
                next = child;
            }
        }
        node->~FSNode();
        ::operator delete(node);
        node = next;
    }
}

}  // namespace zelk
