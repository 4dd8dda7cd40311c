// SPDX-License-Identifier: MIT
#include "scan/FoldersAt.h"

#include <algorithm>
#include <unordered_map>

namespace zelk {

namespace {

/// Indexes the folders of a tree by name, level by level on demand. The tree must not change.
class Levels {
public:
    /// Null if `folder` has no child of that name.
    FSNode* child(const FSNode& folder, std::string_view name) {
        const auto [level, isNew] = levels_.try_emplace(&folder);
        if (isNew) {
            level->second.reserve(folder.children().size());
            for (FSNode& child : folder.children()) level->second.emplace(child.name(), &child);
        }
        const auto found = level->second.find(name);
        return found == level->second.end() ? nullptr : found->second;
    }

private:
    std::unordered_map<const FSNode*, std::unordered_map<std::string_view, FSNode*>> levels_;
};

}  // namespace

std::optional<std::string_view> behindRoot(std::string_view root, std::string_view path) {
    if (root.empty() || !path.starts_with(root)) return std::nullopt;
    path.remove_prefix(root.size());
    if (path.empty() || root.ends_with('/')) return path;
    if (!path.starts_with('/')) return std::nullopt;
    return path.substr(1);
}

std::vector<NodeRef> foldersAt(const FSNode& top, const std::set<std::string>& paths) {
    std::vector<NodeRef> folders;
    Levels levels;
    for (const std::string& path : paths) {
        for (FSNode& root : top.children()) {
            std::optional<std::string_view> rest = behindRoot(root.name(), path);
            if (!rest) continue;
            FSNode* at = &root;
            while (at != nullptr && !rest->empty()) {
                const std::size_t end = std::min(rest->find('/'), rest->size());
                at = levels.child(*at, rest->substr(0, end));
                rest->remove_prefix(std::min(end + 1, rest->size()));
            }
            if (at != nullptr) folders.emplace_back(at);
        }
    }
    return folders;
}

}  // namespace zelk
