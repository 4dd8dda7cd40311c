// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as snapper's list of snapshots and of configurations, and makes the lines that delete and thin
// what is in them: root's shell gets only words that name a configuration and a number.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <regex>
#include <string>
#include <string_view>

#include "system/SnapperList.h"
#include "system/SnapshotCommands.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void checkSnapshots(std::string_view text) {
    static const std::regex harmless("/usr/bin/snapper -c root delete --sync [1-9][0-9]{0,9}");
    const auto listed = zelk::parseSnapperList(text, "root");
    if (!listed) return;
    for (const zelk::LocalSnapshot& snapshot : *listed) {
        require(!snapshot.name.empty());
        const auto line = zelk::deleteLine(zelk::SnapshotKeeper::snapper, snapshot);
        require(line && std::regex_match(*line, harmless));
        // What may go says so.
        require(!snapshot.purgeable || text.find("false") != std::string_view::npos);
    }
}

void checkConfigs(std::string_view text) {
    static const std::regex harmless(
        "/usr/bin/snapper -c ([A-Za-z0-9_][A-Za-z0-9_-]*) cleanup --free-space 5000000000 number; "
        "/usr/bin/snapper -c \\1 cleanup --free-space 5000000000 timeline");
    const auto config = zelk::snapperConfig(text, "/");
    if (!config) return;
    const auto line = zelk::thinLine({zelk::SnapshotKeeper::snapper, {}, *config, false});
    // An expression matches long texts by recursion.
    if (config->size() < 100) require(!line || std::regex_match(*line, harmless));
    zelk::parseSnapperList(text, *config);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkSnapshots(text);
    checkConfigs(text);
    return 0;
}
