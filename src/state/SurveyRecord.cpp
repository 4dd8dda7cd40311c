// SPDX-License-Identifier: MIT
#include "state/SurveyRecord.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <set>
#include <string_view>

namespace zelk {
namespace {

constexpr std::int64_t minimumFolderBytes = 20'000'000;
constexpr std::size_t maximumFolders = 400;
constexpr double minimumDays = 0.2;
constexpr std::uint64_t minimumGrowth = 50'000'000;
constexpr double int64Range = 9223372036854775808.0;  // 2^63

/// The larger number minus the smaller. Unsigned, because the history file may hold any two numbers.
std::uint64_t distance(std::int64_t smaller, std::int64_t larger) {
    return static_cast<std::uint64_t>(larger) - static_cast<std::uint64_t>(smaller);
}

struct Note {
    const FSNode* node;
    std::size_t depth;
};

/// Compares the paths of two nodes of equal depth. Climbs to where they differ instead of building the paths: in a
/// chain of thousands of folders all have the same size, and their paths would take gigabytes.
bool pathIsLess(const FSNode* a, const FSNode* b) {
    int order = 0;
    for (; a != b && a != nullptr && b != nullptr; a = a->parent(), b = b->parent()) {
        if (const int here = a->name().compare(b->name()); here != 0) order = here;
    }
    return order < 0;
}

/// Orders by size, largest first, then by depth, then by path, so that the choice does not depend on the order in which
/// the system lists a folder.
bool goesBehind(const Note& a, const Note& b) {
    if (a.node->size != b.node->size) return a.node->size < b.node->size;
    if (a.depth != b.depth) return a.depth > b.depth;
    return pathIsLess(b.node, a.node);
}

void requireDistinct(const FSNode::Children& roots) {
    std::set<std::string_view> names;
    for (const FSNode& root : roots) {
        if (names.insert(root.name()).second) continue;
        std::fputs("zelk: one folder is a scan root twice\n", stderr);
        std::abort();
    }
}

std::vector<Note> foldersOfAtLeast(const FSNode& tree, std::int64_t minSize) {
    std::vector<Note> notes;
    std::vector<Note> pending{{&tree, 0}};
    while (!pending.empty()) {
        const Note folder = pending.back();
        pending.pop_back();
        for (const FSNode& child : folder.node->children()) {
            pending.push_back({&child, folder.depth + 1});
            if (child.size >= minSize) notes.push_back(pending.back());
        }
    }
    return notes;
}

}  // namespace

std::int64_t sizeGrowth(std::int64_t before, std::int64_t now) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    std::int64_t grown = 0;
    if (__builtin_sub_overflow(now, before, &grown)) return now > before ? most : -most;
    return std::max(grown, -most);
}

SizeByPath bigFolders(const FSNode& tree, std::int64_t minSize, std::size_t limit) {
    requireDistinct(tree.children());
    std::vector<Note> notes = foldersOfAtLeast(tree, minSize);
    std::make_heap(notes.begin(), notes.end(), goesBehind);
    SizeByPath folders;
    while (!notes.empty() && folders.size() < limit) {
        std::pop_heap(notes.begin(), notes.end(), goesBehind);
        folders.emplace(notes.back().node->fullPath(), notes.back().node->size);
        notes.pop_back();
    }
    return folders;
}

SizeByPath recordedFolders(const FSNode& tree) {
    return bigFolders(tree, minimumFolderBytes, maximumFolders);
}

std::optional<std::int64_t> daysUntilFull(const std::vector<SurveyRecord>& history) {
    if (history.size() < 2) return std::nullopt;
    const SurveyRecord& first = history.front();
    const SurveyRecord& last = history.back();
    const double days = (last.date - first.date) / secondsPerDay;
    // Negated, so that a date that is not a number gives no answer either.
    if (!(days > minimumDays) || last.used <= first.used || last.free < 1) return std::nullopt;
    const double rate = static_cast<double>(distance(first.used, last.used)) / days;
    if (!(rate > 0)) return std::nullopt;
    const double left = static_cast<double>(last.free) / rate;
    // More days than an integer holds is as good as never.
    if (!(left < int64Range)) return std::nullopt;
    return static_cast<std::int64_t>(left);
}

std::optional<FolderChanges> folderChanges(const std::vector<SurveyRecord>& history) {
    const SizeByPath* before = nullptr;
    const SizeByPath* now = nullptr;
    for (const SurveyRecord& record : history) {
        if (!record.folders) continue;
        before = now;
        now = &*record.folders;
    }
    if (before == nullptr) return std::nullopt;

    FolderChanges changes;
    for (const auto& [path, size] : *now) {
        const auto old = before->find(path);
        if (old == before->end()) {
            changes.appeared.push_back({path, 0, size});
        } else if (size > old->second && distance(old->second, size) >= minimumGrowth) {
            changes.grew.push_back({path, old->second, size});
        }
    }
    for (const auto& [path, size] : *before) {
        if (!now->contains(path)) changes.gone.push_back({path, size, 0});
    }
    // The maps are sorted by path, so a stable sort keeps equal sizes in the order of their paths.
    const auto sortBy = [](std::vector<FolderChange>& list, auto figure) {
        std::stable_sort(list.begin(), list.end(),
                         [&](const FolderChange& a, const FolderChange& b) { return figure(a) > figure(b); });
    };
    sortBy(changes.grew, [](const FolderChange& change) { return distance(change.oldSize, change.newSize); });
    sortBy(changes.appeared, [](const FolderChange& change) { return change.newSize; });
    sortBy(changes.gone, [](const FolderChange& change) { return change.oldSize; });
    return changes;
}

}  // namespace zelk
