// SPDX-License-Identifier: MIT
// Decodes arbitrary bytes as records of macOS's directory call; the first byte is the claimed count.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/macos/BulkRecords.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::size_t count = data[0];
    const std::span<const std::byte> buffer(reinterpret_cast<const std::byte*>(data + 1), size - 1);
    zelk::DirectoryReader::Entries entries;
    constexpr zelk::ListedDirectory listed{.device = 77, .modified = 1};
    const bool whole = zelk::decodeBulkRecords(buffer, count, listed, entries);
    require(entries.size() <= count);
    require(whole || count > 0);

    const auto* begin = reinterpret_cast<const char*>(buffer.data());
    const auto* end = begin + buffer.size();
    for (const zelk::DirEntry& entry : entries) {
        require(!entry.name.empty() && entry.name != "." && entry.name != "..");
        require(entry.name.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos);
        require(!std::less<>{}(entry.name.data(), begin) && std::less<>{}(entry.name.data() + entry.name.size(), end));
        require(entry.objType != zelk::directoryObjectType || (entry.linkCount == 0 && entry.allocSize == 0));
    }
    return 0;
}
