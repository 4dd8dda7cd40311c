// SPDX-License-Identifier: MIT
#include "scan/FSNode.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>

namespace zelk {

namespace {

[[noreturn]] void fail(const char* why) {
    std::fprintf(stderr, "zelk: %s\n", why);
    std::abort();
}

}  // namespace

NodeRef::NodeRef(FSNode* node) : node_(node) {
    if (node_ != nullptr) node_->arena().retain();
}

NodeRef::~NodeRef() {
    if (node_ != nullptr) node_->arena().release();
}

NodeRef FSNode::make(std::string_view name, TimePoint modified, bool isDirectory) {
    return NodeRef(&make(NodeArena::make().ownersSpace(), name, modified, isDirectory));
}

FSNode& FSNode::make(NodeArena::Space& space, std::string_view name, TimePoint modified, bool isDirectory) {
    static_assert(std::is_trivially_destructible_v<TimePoint> && alignof(FSNode) == alignof(void*));
    static_assert(sizeof(void*) != 8 || sizeof(FSNode) == 64, "a survey has a hundred thousand nodes");
    static_assert(sizeof(FSNode) + maximumNameLength <= NodeArena::largestBytes);
    if (name.size() > maximumNameLength) fail("a folder's name is too long");
    void* const memory = space.allocate(sizeof(FSNode) + name.size());
    auto* const node = new (memory) FSNode(static_cast<std::uint16_t>(name.size()), modified, isDirectory);
    if (!name.empty()) std::memcpy(static_cast<void*>(node + 1), name.data(), name.size());
    return *node;
}

FSNode& FSNode::append(std::string_view name, TimePoint modified, bool isDirectory) {
    return append(arena().ownersSpace(), name, modified, isDirectory);
}

FSNode& FSNode::append(NodeArena::Space& space, std::string_view name, TimePoint modified, bool isDirectory) {
    FSNode& child = make(space, name, modified, isDirectory);
    link(child);
    return child;
}

FSNode& FSNode::append(FSNode& removed) {
    if (!removed.isRemoved() || &removed.arena() != &arena())
        fail("only what was removed from a tree can return to it");
    link(removed);
    return removed;
}

void FSNode::link(FSNode& child) {
    child.parent_ = this;
    if (firstChild_ == nullptr) {
        child.previous_ = &child;
        firstChild_ = &child;
        return;
    }
    FSNode* const last = std::exchange(firstChild_->previous_, &child);
    child.previous_ = last;
    last->next_ = &child;
}

void FSNode::remove(FSNode& child) {
    if (child.parent_ != this || child.isRemoved()) return;
    if (child.next_ != nullptr)
        child.next_->previous_ = child.previous_;
    else
        firstChild_->previous_ = child.previous_;
    if (firstChild_ == &child)
        firstChild_ = child.next_;
    else
        child.previous_->next_ = child.next_;
    child.next_ = nullptr;
    child.previous_ = nullptr;
}

// Folders may be nested to any depth, so a path may not recurse.

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

}  // namespace zelk
