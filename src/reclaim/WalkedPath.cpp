// SPDX-License-Identifier: MIT
#include "reclaim/WalkedPath.h"

#include <algorithm>

#include "platform/FileManager.h"

namespace zelk {

bool ContainedText::isIn(std::string_view text) {
    if (foundEnd_) return true;
    const std::size_t from = searched_ - std::min(searched_, wanted_.size() - 1);
    const std::size_t at = text.find(wanted_, from);
    if (at != std::string_view::npos) foundEnd_ = at + wanted_.size();
    searched_ = foundEnd_.value_or(text.size());
    return foundEnd_.has_value();
}

void ContainedText::cutTo(std::size_t length) {
    if (foundEnd_ && *foundEnd_ > length) foundEnd_.reset();
    searched_ = std::min(searched_, length);
}

WalkedPath::WalkedPath(const FSNode& node) {
    if (const FSNode* parent = node.parent()) parent->fullPath(text_);
    enter(node.name());
}

void WalkedPath::enter(std::string_view name) {
    parentLength_ = text_.size();
    append(name);
}

void WalkedPath::leaveTo(std::size_t length) {
    cutTo(length);
}

bool WalkedPath::hasBeside(std::string_view sibling, std::string_view name, FileManager& files) {
    if (parentLength_ == 0) return false;  // a scan root has no parent node
    cutTo(parentLength_);
    append(sibling);
    const bool found = files.exists(text_);
    cutTo(parentLength_);
    append(name);
    return found;
}

void WalkedPath::append(std::string_view name) {
    if (!text_.empty() && text_.back() != '/') text_ += '/';
    text_ += name;
}

void WalkedPath::cutTo(std::size_t length) {
    text_.resize(length);
    applicationSupport_.cutTo(length);
    config_.cutTo(length);
    cache_.cutTo(length);
    user_.cutTo(length);
}

}  // namespace zelk
