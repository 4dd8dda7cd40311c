// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <unordered_set>

namespace zelk {

/// Identifies a file on disk, independent of its names.
struct FileID {
    std::int32_t device = 0;
    std::uint64_t inode = 0;

    bool operator==(const FileID&) const = default;
};

/// Remembers files with several hard links, so that each is counted once. Safe from any thread: sharded by the low bits
/// of the inode, with a lock per shard. Files with one link are not entered.
class InodeDeduper {
public:
    static constexpr std::size_t shardCount = 16;

    static std::size_t shardIndex(std::uint64_t inode) { return inode & (shardCount - 1); }

    /// True the first time.
    bool insertIfNew(std::int32_t device, std::uint64_t inode) {
        Shard& shard = shards_[shardIndex(inode)];
        const std::lock_guard lock(shard.mutex);
        return shard.seen.insert({device, inode}).second;
    }

private:
    struct Hash {
        std::size_t operator()(const FileID& id) const {
            // The low bits are equal within a shard, so mix all bits before choosing a bucket.
            const std::uint64_t mixed = (id.inode ^ static_cast<std::uint32_t>(id.device)) * 0x9E3779B97F4A7C15U;
            return static_cast<std::size_t>(mixed ^ mixed >> 32);
        }
    };
    struct Shard {
        std::unordered_set<FileID, Hash> seen;
        std::mutex mutex;
    };

    std::array<Shard, shardCount> shards_;
};

}  // namespace zelk
