// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk::zoo {

/// A temporary folder that is removed with its contents, whatever their depth and permissions.
class TempFolder {
public:
    enum class Medium {
        disk,    ///< $TMPDIR, or /tmp
        memory,  ///< tmpfs if available, for trees with very many folders; else like disk
    };

    explicit TempFolder(Medium medium = Medium::disk);
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& below) const { return path_ + '/' + below; }

private:
    std::string path_;
};

}  // namespace zelk::zoo
