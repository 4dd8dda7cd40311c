// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as Firefox's list of profiles.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/FolderPath.h"
#include "reclaim/FirefoxProfiles.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto profiles = zelk::parseFirefoxProfiles(text);
    for (const zelk::FirefoxProfile& profile : profiles) {
        require(!profile.path.empty() && profile.path != "." && profile.path != "/");
        require(zelk::normalFolder(profile.path) == profile.path);
        require(("/" + profile.path + "/").find("/../") == std::string::npos);
        require(profile.path.find('\0') == std::string::npos && profile.path.find('\n') == std::string::npos);
        require(text.find("[Profile") != std::string_view::npos);
    }

    // What stands after it is read whatever it was.
    auto more = zelk::parseFirefoxProfiles(std::string(text) + "\n[Profile0]\nIsRelative=1\nPath=after\n");
    require(more.size() == profiles.size() + 1 && more.back().path == "after");
    more.pop_back();
    require(more == profiles);
    return 0;
}
