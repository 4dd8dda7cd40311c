// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/ReplacedFile.h"

namespace zelk::cli {

/// The file that an export goes to. A regular file appears whole, in the place of what was there; a pipe or a device is
/// written as it comes. One thread.
class ExportFile {
public:
    /// Opens it. For a pipe this waits for a reader. Once `stopped` says so, nothing more is written.
    ExportFile(const std::string& path, std::function<bool()> stopped);
    /// Without a commit() that succeeded, a regular file keeps the content that it had.
    ~ExportFile();
    ExportFile(const ExportFile&) = delete;
    ExportFile& operator=(const ExportFile&) = delete;

    /// Both return 0, or the errno of what failed.
    int write(std::string_view piece);
    int commit();

    /// Whether a file could be written there now: 0, or the errno. Leaves nothing behind.
    static int whyNot(const std::string& path);
    /// Whether it is the file that standard output goes to: what else is written there would be replaced.
    static bool isStandardOutput(const std::string& path);

private:
    std::function<bool()> stopped_;
    std::unique_ptr<ReplacedFile> replaced_;
    int descriptor_ = -1;
    int error_ = 0;
};

}  // namespace zelk::cli
