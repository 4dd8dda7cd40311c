// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as diskutil's list of snapshots and as that of ZFS, and makes of everything in them the line
// that deletes it: whatever a name is, root's shell gets one word that is the name of a snapshot.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "system/SnapshotCommands.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

bool isHarmless(std::string_view word) {
    const auto isPart = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '.' || c == '_' ||
               c == '-';
    };
    return !word.empty() && word[0] != '-' && word.find_first_not_of('.') != std::string_view::npos &&
           std::all_of(word.begin(), word.end(), isPart);
}

void checkLine(const zelk::LocalSnapshot& snapshot) {
    constexpr std::string_view command = "/usr/bin/tmutil deletelocalsnapshots ";
    const std::string_view stamp = zelk::dateStamp(snapshot.name);
    require(snapshot.name.find(stamp) != std::string::npos);
    require(!snapshot.date || stamp.size() == 17);
    const auto line = zelk::deleteLine(zelk::SnapshotKeeper::diskutil, snapshot);
    require(line.has_value() == isHarmless(stamp));
    if (line) require(*line == std::string(command) + std::string(stamp));
    require(!zelk::deleteLine(zelk::SnapshotKeeper::snapper, snapshot));
    require(!zelk::deleteLine(zelk::SnapshotKeeper::zfs, snapshot));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::size_t names = 0;
    const auto listed = zelk::parseSnapshotListing(text);
    for (const zelk::LocalSnapshot& snapshot : listed) {
        require(!snapshot.name.empty());
        require(snapshot.uuid.empty() || snapshot.uuid.size() == 36);
        require(snapshot.name.find('\n') == std::string::npos);
        names += snapshot.name.size();
        checkLine(snapshot);
    }
    require(names <= size);
    // Neither what follows nor empty lines change what was read.
    const auto more =
        zelk::parseSnapshotListing("\n\n" + std::string(text) + "\n00000000-0000-0000-0000-000000000000\n");
    require(more == listed);

    for (const zelk::LocalSnapshot& snapshot : zelk::parseZfsList(text, "")) {
        require(snapshot.name.find('@') != std::string::npos && !snapshot.purgeable);
        require(!snapshot.date || (*snapshot.date >= 0 && *snapshot.date < 253'402'300'800.0));
        require(!zelk::deleteLine(zelk::SnapshotKeeper::zfs, snapshot));
        const std::string dataset = snapshot.name.substr(0, snapshot.name.find('@'));
        const auto own = zelk::parseZfsList(text, dataset);
        require(std::find(own.begin(), own.end(), snapshot) != own.end());
    }
    return 0;
}
