// SPDX-License-Identifier: MIT
#include "scan/NodeArena.h"

#include <cstdint>
#include <new>

// Within a chunk AddressSanitizer knows only what it is told: exactly what was allocated may be touched.
#if defined(__SANITIZE_ADDRESS__)
#define ZELK_ADDRESSES_ARE_CHECKED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZELK_ADDRESSES_ARE_CHECKED
#endif
#endif
#ifdef ZELK_ADDRESSES_ARE_CHECKED
// From the sanitizer's interface, whose header g++ does not install.
extern "C" void __asan_poison_memory_region(void const volatile* from, std::size_t bytes);
extern "C" void __asan_unpoison_memory_region(void const volatile* from, std::size_t bytes);
#endif

namespace zelk {

namespace {

constexpr std::size_t alignment = alignof(void*);

void forbid([[maybe_unused]] void* from, [[maybe_unused]] std::size_t bytes) {
#ifdef ZELK_ADDRESSES_ARE_CHECKED
    __asan_poison_memory_region(from, bytes);
#endif
}

void allow([[maybe_unused]] void* from, [[maybe_unused]] std::size_t bytes) {
#ifdef ZELK_ADDRESSES_ARE_CHECKED
    __asan_unpoison_memory_region(from, bytes);
#endif
}

}  // namespace

/// The header at the front of a chunk.
struct NodeArena::Chunk {
    NodeArena& arena;
    Chunk* before;
    std::size_t used = sizeof(Chunk);  ///< from the front; the header included

    std::byte* at(std::size_t offset) { return reinterpret_cast<std::byte*>(this) + offset; }
};

void* NodeArena::Space::allocate(std::size_t bytes) {
    const std::size_t taken = (bytes + alignment - 1) / alignment * alignment;
    if (chunk_ == nullptr || chunkBytes - chunk_->used < taken) chunk_ = arena_.addChunk();
    std::byte* const place = chunk_->at(chunk_->used);
    chunk_->used += taken;
    allow(place, bytes);
    return place;
}

NodeArena& NodeArena::of(const void* allocated) {
    const auto address = reinterpret_cast<std::uintptr_t>(allocated);
    return reinterpret_cast<const Chunk*>(address / chunkBytes * chunkBytes)->arena;
}

NodeArena::Chunk* NodeArena::addChunk() {
    static_assert(sizeof(Chunk) % alignment == 0 && sizeof(Chunk) + largestBytes + alignment <= chunkBytes);
    auto* const chunk = new (::operator new(chunkBytes, std::align_val_t(chunkBytes))) Chunk{*this, nullptr};
    forbid(chunk->at(sizeof(Chunk)), chunkBytes - sizeof(Chunk));
    chunk->before = last_.load(std::memory_order_relaxed);
    while (!last_.compare_exchange_weak(chunk->before, chunk, std::memory_order_release, std::memory_order_relaxed)) {
    }
    return chunk;
}

NodeArena::~NodeArena() {
    for (Chunk* chunk = last_.load(std::memory_order_acquire); chunk != nullptr;) {
        Chunk* const before = chunk->before;
        ::operator delete(chunk, std::align_val_t(chunkBytes));
        chunk = before;
    }
}

std::size_t NodeArena::usedBytes() const {
    std::size_t bytes = 0;
    for (const Chunk* chunk = last_.load(std::memory_order_acquire); chunk != nullptr; chunk = chunk->before)
        bytes += chunk->used - sizeof(Chunk);
    return bytes;
}

std::size_t NodeArena::takenBytes() const {
    std::size_t bytes = 0;
    for (const Chunk* chunk = last_.load(std::memory_order_acquire); chunk != nullptr; chunk = chunk->before)
        bytes += chunkBytes;
    return bytes;
}

}  // namespace zelk
