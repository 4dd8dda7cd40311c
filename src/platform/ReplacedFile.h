// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace zelk {

/// A file that is written in pieces and appears at once, whole, in the place of what was there before.
///
/// - Until commit() the old content is in place; the new one is in a temporary file beside it, which goes with this
///   object. The next write into the same folder removes that of a killed writer.
/// - Follows a symbolic link and replaces its target, since users link such files into place. A dangling link creates
///   its target.
/// - Replaces regular files only: a folder, pipe or device is a failure.
/// - An existing file keeps its permissions.
/// - With two concurrent writers the later commit wins; contents never mix.
///
/// Blocking. One thread at a time; any number of files in any number of processes.
class ReplacedFile {
public:
    /// Who may read a new file.
    enum class Access : std::uint8_t {
        owner,  ///< its owner only (0600)
        usual,  ///< whoever the process's mask lets
    };

    /// Makes the temporary file. The folder of `path`, which is bytes, must exist.
    ReplacedFile(const std::string& path, Access access);
    /// Without a commit() that succeeded, removes the temporary file.
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    /// Appends to the new content. Does nothing after a failure.
    void write(std::string_view content);
    /// Flushes the new content to the disk and puts it into place; call it once. False after any failure. True means
    /// that readers see the new content. It is also on the disk, unless the system refuses to flush the folder; then a
    /// power loss may restore the old content, whole.
    bool commit();

    /// The errno of the first failure; 0 as long as there was none.
    int error() const;

private:
    struct Writing;
    std::unique_ptr<Writing> writing_;
};

}  // namespace zelk
