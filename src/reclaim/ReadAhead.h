// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/FileContents.h"
#include "platform/ItemPath.h"

namespace zelk {

/// Has the system read files into its cache shortly before they are hashed, so that the disk works while the processor
/// does: on a thread of its own, since asking for what is on a slow disk may block. Without that thread everything is
/// only slower.
class ReadAhead {
public:
    struct File {
        ItemPath item;
        std::int64_t size;
    };

    /// How far ahead of the reader it works at most, in bytes: enough for a disk that has to seek, and little compared
    /// with the memory of any machine.
    static constexpr std::int64_t distance = 64 * 1024 * 1024;

    /// What it asks for at once, in bytes. A kernel may serve no more of a request than it would read ahead by itself.
    static constexpr std::int64_t requestBytes = 2 * 1024 * 1024;

    /// `files` are those that will be read, in this order. `contents` must outlive this object.
    ReadAhead(FileContents& contents, std::vector<File> files);
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;
    /// Waits until the thread has ended, which may be in the middle of a request.
    ~ReadAhead();

    /// The reader has come so far: `bytes` of the sum of all sizes.
    void follow(std::int64_t bytes);

private:
    struct Shared;
    std::shared_ptr<Shared> shared_;
};

}  // namespace zelk
