// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace zelk {

/// Computes SHA-256 digests, one after the other. Independent of the user's configuration of the library behind it.
/// Used by one thread.
class Sha256 {
public:
    Sha256();
    ~Sha256();
    Sha256(const Sha256&) = delete;
    Sha256& operator=(const Sha256&) = delete;

    /// Begins a digest, dropping one that was not finished.
    void start();
    void add(const std::byte* bytes, std::size_t count);
    /// Ends the digest: 64 lower-case hexadecimal digits. Absent if the library could not compute it, or without a
    /// start() since the last one.
    std::optional<std::string> finish();

private:
    struct Library;
    std::unique_ptr<Library> library_;
    bool good_ = false;  ///< every step since start() has succeeded
};

}  // namespace zelk
