// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstddef>

namespace zelk {

/// The memory of one tree of folders: chunks that are filled from front to back and released together, once nobody
/// refers to the tree any more. Every chunk is aligned to its size, so the address of what is in it leads to its header
/// and from there to the arena: a node need not say to which tree it belongs.
///
/// References are counted atomically and may be taken and dropped on any thread. Nothing that is allocated here is
/// destroyed, only released.
class NodeArena {
    struct Chunk;

public:
    static constexpr std::size_t chunkBytes = std::size_t{256} * 1024;
    /// What one allocation may ask for at most.
    static constexpr std::size_t largestBytes = chunkBytes - 64;

    /// Allocates for one thread, from chunks that no other fills: so there is no lock. Valid as long as the arena.
    class Space {
    public:
        explicit Space(NodeArena& arena) : arena_(arena) {}
        Space(const Space&) = delete;
        Space& operator=(const Space&) = delete;

        /// Uninitialized, aligned like a pointer. At most largestBytes.
        void* allocate(std::size_t bytes);
        const NodeArena& arena() const { return arena_; }

    private:
        NodeArena& arena_;
        Chunk* chunk_ = nullptr;  ///< the one being filled
    };

    /// An arena without references: the first retain() must come before any release().
    static NodeArena& make() { return *new NodeArena; }
    /// The arena that this was allocated in.
    static NodeArena& of(const void* allocated);

    NodeArena(const NodeArena&) = delete;
    NodeArena& operator=(const NodeArena&) = delete;

    void retain() { references_.fetch_add(1, std::memory_order_relaxed); }
    /// The last one releases everything.
    void release() {
        if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
    }

    /// That of the thread to which the whole tree belongs.
    Space& ownersSpace() { return owners_; }

    /// How many references there are, which others may be changing.
    std::size_t references() const { return references_.load(std::memory_order_relaxed); }

    // While no thread allocates.
    std::size_t usedBytes() const;   ///< what was allocated, gaps for the alignment included
    std::size_t takenBytes() const;  ///< the chunks, of which the system provides the pages that were touched

private:
    NodeArena() = default;
    ~NodeArena();
    Chunk* addChunk();

    std::atomic<Chunk*> last_ = nullptr;  ///< each leads to the one before
    std::atomic<std::size_t> references_ = 0;
    Space owners_{*this};
};

}  // namespace zelk
