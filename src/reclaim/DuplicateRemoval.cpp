// SPDX-License-Identifier: MIT
#include "reclaim/DuplicateRemoval.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "reclaim/ContentHash.h"

namespace zelk {

namespace {

class DuplicateMover {
public:
    DuplicateMover(const DuplicateGroup& group, const Platform& platform)
        : digest_(group.digest()), files_(group.files), platform_(platform) {}

    std::size_t count() const { return files_.size(); }

    /// Whether the file is still what was hashed.
    bool isIntact(std::size_t index) {
        HashedFile& file = files_[index];
        if (!file.whole) return false;
        if (file.settled) return platform_.contents.stamp(file.item) == file.stamp;
        const std::unique_ptr<FileReading> reading = platform_.contents.open(file.item);
        const std::optional<ContentHash> content =
            reading ? hasher().hash(*reading, [](std::size_t) { return true; }) : std::nullopt;
        if (!content || !content->whole || content->digest != digest_) return false;
        file.stamp = reading->stamp();
        file.settled = content->settled;
        return true;
    }

    void move(std::size_t index, MovedDuplicates& moved) {
        const HashedFile& file = files_[index];
        TrashResult result = platform_.trash.trash(file.item);
        if (result.failure) return;
        // Something else was swapped in at the last moment.
        if (result.item && result.item->identity != file.stamp.identity &&
            !platform_.trash.restore(*result.item).has_value())
            return;
        ++moved.moved;
        if (result.item) moved.restorable.push_back({file, std::move(*result.item)});
        renewLinksTo(file.stamp.identity);
    }

private:
    ContentHasher& hasher() {
        if (!hasher_) hasher_.emplace(platform_.clock);
        return *hasher_;
    }

    /// Moving one name of a file changes the time at which its properties changed, for its other names too.
    void renewLinksTo(const FileIdentity& moved) {
        for (HashedFile& file : files_) {
            if (file.stamp.identity != moved) continue;
            // The rest of the stamp tells of any other change.
            if (const std::optional<FileStamp> now = platform_.contents.stamp(file.item))
                file.stamp.changed = now->changed;
        }
    }

    const std::string digest_;
    std::vector<HashedFile> files_;
    const Platform& platform_;
    std::optional<ContentHasher> hasher_;
};

}  // namespace

MovedDuplicates trashDuplicates(const DuplicateGroup& group, const std::string& keep, const Platform& platform,
                                Removal& removal) {
    MovedDuplicates moved;
    DuplicateMover mover(group, platform);
    const auto kept = std::find(group.paths.begin(), group.paths.end(), keep);
    const auto keptIndex = static_cast<std::size_t>(kept - group.paths.begin());
    bool mayMove = kept != group.paths.end();
    for (std::size_t index = 0; index < mover.count(); ++index) {
        if (group.paths[index] == keep) continue;
        mayMove = mayMove && removal.mayBegin();
        if (!mayMove) {
            removal.noteSkipped();
            continue;
        }
        // The kept one last: reading the other may take a while.
        const bool isIntact = mover.isIntact(index);
        mayMove = mover.isIntact(keptIndex);
        if (isIntact && mayMove) mover.move(index, moved);
        removal.noteDone();
    }
    return moved;
}

}  // namespace zelk
