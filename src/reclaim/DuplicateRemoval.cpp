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
    DuplicateMover(const DuplicateGroup& group, const Platform& platform, const Removal& removal)
        : digest_(group.digest()), files_(group.files), platform_(platform), removal_(removal) {}

    std::size_t count() const { return files_.size(); }

    /// Whether the file is still what was hashed.
    bool isIntact(std::size_t index) {
        HashedFile& file = files_[index];
        if (!file.whole) return false;
        if (file.settled) return platform_.contents.stamp(file.item) == file.stamp;
        const std::unique_ptr<FileReading> reading = platform_.contents.open(file.item);
        const std::optional<ContentHash> content =
            reading ? hasher().hash(*reading, [&](std::size_t) { return removal_.mayBegin(); }) : std::nullopt;
        if (!content || !content->whole || content->digest != digest_) return false;
        file.stamp = reading->stamp();
        file.settled = content->settled;
        return true;
    }

    bool isAsLookedAt(std::size_t index) { return platform_.contents.stamp(files_[index].item) == files_[index].stamp; }

    /// Returns whether more may be moved.
    bool move(std::size_t index, std::size_t kept, MovedDuplicates& moved) {
        const HashedFile& file = files_[index];
        TrashResult result = platform_.trash.trash(file.item);
        if (result.failure) {
            moved.stayed.push_back(file.item.text());
            return true;
        }
        // Something else was swapped in at the last moment.
        if (result.item && result.item->identity != file.stamp.identity &&
            !platform_.trash.restore(*result.item).has_value())
            return true;
        renewLinksTo(file.stamp.identity);
        // Two file systems may show one file as two, with different identities: then the kept one has gone too.
        const bool isKept = isAsLookedAt(kept);
        if (!isKept && result.item && !platform_.trash.restore(*result.item).has_value()) {
            moved.stayed.push_back(file.item.text());
            return false;
        }
        ++moved.moved;
        if (result.item) moved.restorable.push_back({file, std::move(*result.item)});
        return isKept;
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
    const Removal& removal_;
    std::optional<ContentHasher> hasher_;
};

}  // namespace

MovedDuplicates trashDuplicates(const DuplicateGroup& group, const std::string& keep, const Platform& platform,
                                Removal& removal) {
    MovedDuplicates moved;
    DuplicateMover mover(group, platform, removal);
    const auto kept = std::find(group.paths.begin(), group.paths.end(), keep);
    const auto keptIndex = static_cast<std::size_t>(kept - group.paths.begin());
    bool mayMove = kept != group.paths.end();
    for (std::size_t index = 0; index < mover.count(); ++index) {
        if (group.paths[index] == keep) continue;
        mayMove = mayMove && removal.mayBegin();
        if (!mayMove) {
            moved.stayed.push_back(group.paths[index]);
            removal.noteSkipped();
            continue;
        }
        const bool isIntact = mover.isIntact(index);
        mayMove = mover.isIntact(keptIndex);
        // Reading the kept one may have taken a while, in which the other was written.
        if (isIntact && mayMove && mover.isAsLookedAt(index)) mayMove = mover.move(index, keptIndex, moved);
        removal.noteDone();
    }
    return moved;
}

}  // namespace zelk
