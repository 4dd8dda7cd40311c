// SPDX-License-Identifier: MIT
#include "platform/posix/DirectoryNames.h"

#include <dirent.h>

#include <memory>
#include <string_view>

namespace zelk {

std::optional<std::vector<std::string>> directoryNames(Descriptor directory) {
    if (!directory) return std::nullopt;
    const auto close = [](DIR* stream) { ::closedir(stream); };
    const std::unique_ptr<DIR, decltype(close)> stream(::fdopendir(directory.get()), close);
    if (!stream) return std::nullopt;
    directory.release();

    std::vector<std::string> names;
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(stream.get());
        if (entry == nullptr) break;
        const std::string_view name(entry->d_name);
        if (name != "." && name != "..") names.emplace_back(name);
    }
    if (errno != 0) return std::nullopt;
    return names;
}

}  // namespace zelk
