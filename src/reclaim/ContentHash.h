// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/FileContents.h"
#include "platform/Sha256.h"
#include "platform/Time.h"

namespace zelk {

/// The hash of what could be read of a file.
struct ContentHash {
    std::string digest;    ///< lower-case SHA-256
    bool whole = false;    ///< see HashedFile
    bool settled = false;  ///< see HashedFile
};

/// Hashes files, one after the other, in one buffer. Used by one thread. The services must outlive it.
class ContentHasher {
public:
    explicit ContentHasher(Clock& clock);

    /// Reads `file` to its end, or to the first failure, which is no error here: then the hash is that of what was
    /// read. Calls `read` with the size of each chunk; stops when that returns false. Absent if it was stopped or if
    /// the digest could not be computed.
    std::optional<ContentHash> hash(FileReading& file, const std::function<bool(std::size_t)>& read);

private:
    static constexpr std::size_t chunkBytes = 1'048'576;
    static constexpr std::size_t alignment = 4096;
    struct alignas(alignment) Chunk {
        std::byte bytes[chunkBytes];
    };

    Clock& clock_;
    Sha256 sha256_;
    std::unique_ptr<Chunk> chunk_;
};

}  // namespace zelk
