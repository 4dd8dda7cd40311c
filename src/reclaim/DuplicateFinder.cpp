// SPDX-License-Identifier: MIT
#include "reclaim/DuplicateFinder.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "platform/FolderPath.h"
#include "reclaim/ContentHash.h"
#include "reclaim/ReadAhead.h"

namespace zelk {

namespace {

/// Where files belong to a program that expects them there.
constexpr std::string_view droppedParts[] = {"/node_modules/", "/.git/", ".app/", ".framework/", "/Library/Caches/"};

}  // namespace

/// Files by size, in the order in which they were found.
struct DuplicateFinder::Candidates {
    struct File {
        std::string path;
        std::size_t root;  ///< index
    };
    std::vector<std::string> roots;
    std::map<std::int64_t, std::vector<File>, std::greater<>> bySize;

    ItemPath itemOf(const File& file) const { return *ItemPath::below(roots[file.root], file.path); }
};

/// Collects the candidates of one search.
class DuplicateFinder::Folders {
public:
    Folders(const DuplicateFinder& finder, std::int64_t smallest, Candidates& found)
        : finder_(finder), smallest_(smallest), found_(found) {}

    void search(const std::string& root) {
        const std::unique_ptr<FolderWalk> walk = finder_.contents_.walk(root);
        // One that has no proper path cannot be told as one either.
        if (!walk || !ItemPath::from(pathIn(walk->root(), "x"))) return;
        found_.roots.push_back(walk->root());
        std::string path = walk->root();
        if (finder_.trash_.hold(path) || !isNew(*walk)) return;
        struct Level {
            std::vector<FolderEntry> entries;
            std::size_t next;
            std::size_t length;  ///< of its path
        };
        // No recursion, whose depth the folders would decide.
        std::vector<Level> levels;
        levels.push_back({walk->list(smallest_), 0, path.size()});
        while (!levels.empty() && !finder_.isAbandoned()) {
            Level& level = levels.back();
            path.resize(level.length);
            if (level.next == level.entries.size()) {
                levels.pop_back();
                if (!levels.empty()) walk->leave();
                continue;
            }
            const FolderEntry& entry = level.entries[level.next++];
            path = pathIn(path, entry.name);
            if (!entry.isFolder) {
                if (!isDropped(path)) found_.bySize[entry.size].push_back({path, found_.roots.size() - 1});
            } else if (mayHold(path) && walk->enter(entry.name)) {
                if (isNew(*walk))
                    levels.push_back({walk->list(smallest_), 0, path.size()});
                else
                    walk->leave();
            }
        }
    }

private:
    bool isDropped(const std::string& path) const {
        const auto isIn = [&](std::string_view part) { return path.find(part) != std::string::npos; };
        return std::any_of(std::begin(droppedParts), std::end(droppedParts), isIn) ||
               (!finder_.droppedFolder_.empty() && path.starts_with(finder_.droppedFolder_));
    }
    /// Whether any file in this folder may count. What lies in the Trash must not be the one that is kept.
    bool mayHold(const std::string& folder) const { return !isDropped(folder + '/') && !finder_.trash_.areAt(folder); }
    bool isNew(FolderWalk& walk) {
        const std::optional<FileIdentity> identity = walk.identity();
        return identity && entered_.insert({identity->device, identity->inode}).second;
    }

    const DuplicateFinder& finder_;
    const std::int64_t smallest_;
    Candidates& found_;
    std::set<std::pair<std::uint64_t, std::uint64_t>> entered_;
};

DuplicateFinder::DuplicateFinder(const Platform& platform)
    : contents_(platform.contents), clock_(platform.clock), trash_(platform.locations.trashPlaces()) {
    // One copy of an application's data for each of its last versions, which the package system made.
    if (platform.system == SystemKind::desktopLinux) droppedFolder_ = pathIn(platform.locations.home(), "snap") + '/';
}

DuplicateFinder::Candidates DuplicateFinder::list(const std::vector<std::string>& roots,
                                                  std::int64_t minimumSize) const {
    Candidates candidates;
    Folders folders(*this, minimumSize, candidates);
    for (const std::string& root : roots) folders.search(root);
    std::erase_if(candidates.bySize, [](const auto& one) { return one.second.size() < 2; });
    return candidates;
}

std::vector<std::string> DuplicateFinder::candidates(const std::vector<std::string>& roots,
                                                     std::int64_t minimumSize) const {
    std::vector<std::string> paths;
    for (const auto& [size, files] : list(roots, minimumSize).bySize)
        for (const Candidates::File& file : files) paths.push_back(file.path);
    return paths;
}

std::vector<DuplicateGroup> DuplicateFinder::find(const std::vector<std::string>& roots,
                                                  std::int64_t minimumSize) const {
    const Candidates candidates = list(roots, minimumSize);
    if (listed) listed();
    if (isAbandoned()) return {};
    std::vector<DuplicateGroup> groups = hash(candidates);
    std::stable_sort(groups.begin(), groups.end(), [](const DuplicateGroup& a, const DuplicateGroup& b) {
        return a.recoverable() > b.recoverable();
    });
    return groups;
}

std::vector<DuplicateGroup> DuplicateFinder::hash(const Candidates& candidates) const {
    HashProgress done;
    std::vector<ReadAhead::File> order;
    for (const auto& [size, files] : candidates.bySize) {
        done.toHash += size * static_cast<std::int64_t>(files.size());
        for (const Candidates::File& file : files)
            if (readsAhead) order.push_back({candidates.itemOf(file), size});
    }
    std::optional<ReadAhead> ahead;
    if (!order.empty()) ahead.emplace(contents_, std::move(order));

    ContentHasher hasher(clock_);
    std::vector<DuplicateGroup> groups;
    std::int64_t begin = 0;  // of the file that is read, in the sum of all sizes
    for (const auto& [size, files] : candidates.bySize) {
        std::map<std::string, DuplicateGroup> byHash;
        std::vector<std::string> hashes;  // in the order in which they occurred
        for (const Candidates::File& file : files) {
            // It may be longer by now than it was listed.
            const std::int64_t end = begin + size;
            const auto step = [&](std::size_t bytes) {
                done.hashed = std::min(end, done.hashed + static_cast<std::int64_t>(bytes));
                if (ahead) ahead->follow(done.hashed);
                if (progress) progress(done);
                return !isAbandoned();
            };
            const ItemPath item = candidates.itemOf(file);
            const std::unique_ptr<FileReading> reading = contents_.open(item);
            const std::optional<ContentHash> content = reading ? hasher.hash(*reading, step) : std::nullopt;
            if (isAbandoned()) return {};
            if (content) {
                const std::string key = content->digest + "-" + std::to_string(size);
                DuplicateGroup& group = byHash[key];
                if (group.paths.empty()) hashes.push_back(key);
                group.hash = key;
                group.size = size;
                group.paths.push_back(file.path);
                group.files.push_back({item, reading->stamp(), content->whole, content->settled});
            }
            begin = done.hashed = end;
        }
        for (const std::string& hash : hashes)
            if (DuplicateGroup& group = byHash.at(hash); group.paths.size() > 1) groups.push_back(std::move(group));
    }
    if (progress && done.toHash > 0) progress(done);
    return groups;
}

}  // namespace zelk
