// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk::zoo {

/// A new folder, removed with all that is in it when this goes, however deep and with whatever permissions.
class TempFolder {
public:
    enum class Medium {
        disk,    ///< $TMPDIR, or /tmp
        memory,  ///< a file system in memory where there is one, for trees of very many folders; else as disk
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
