// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/DirectoryReader.h"

namespace zelk {

/// A scan root as an open descriptor.
class PosixRoot : public DirectoryRoot {
public:
    /// Takes ownership of `descriptor`.
    explicit PosixRoot(int descriptor) : descriptor_(descriptor) {}
    PosixRoot(const PosixRoot&) = delete;
    PosixRoot& operator=(const PosixRoot&) = delete;
    ~PosixRoot() override { close(descriptor_); }

    int descriptor() const { return descriptor_; }

private:
    int descriptor_;
};

/// The device number in the form that directory entries use.
std::int32_t deviceOf(const struct stat& status);

std::optional<RootStatus> posixRootStatus(const std::string& path);
std::shared_ptr<const DirectoryRoot> openPosixRoot(const std::string& path);

}  // namespace zelk
