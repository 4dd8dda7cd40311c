// SPDX-License-Identifier: MIT
// Writes info for arbitrary paths and reads it back with a strict reader of the format; shortens arbitrary names, which
// must stay valid, within the limit and with their extension.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <string>
#include <string_view>

#include "fakes/TrashContent.h"
#include "platform/linux/trash/TrashInfo.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void checkInfo(const std::string& path) {
    std::tm date{};
    date.tm_year = 126;
    date.tm_mday = 1;
    require(zelk::fakes::pathInTrashInfo(zelk::trashInfoText(path, date)) == path);
}

void checkName(std::string_view name, std::size_t number, std::size_t limit) {
    const std::string first = zelk::trashName(name, 1, limit);
    const std::string made = zelk::trashName(name, number, limit);
    require(first.size() <= limit && made.size() <= limit && !made.empty());
    require(name.size() > limit || first == name);
    require(number == 1 || made.find('.' + std::to_string(number)) != std::string::npos);
    require(number == 1 || made != zelk::trashName(name, number + 1, limit));
    require(made != "." && made != "..");
    require(std::none_of(made.begin(), made.end(), [](char c) { return c == '/' || c == '\0'; }));
    const std::size_t dot = name.rfind('.');
    if (dot != std::string_view::npos && dot > 0 && name.size() - dot < 20) require(made.ends_with(name.substr(dot)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const std::string bytes(reinterpret_cast<const char*>(data + 2), size - 2);
    checkInfo(bytes);
    const bool isName = !bytes.empty() && bytes != "." && bytes != ".." &&
                        bytes.find_first_of(std::string_view("/\0", 2)) == std::string::npos;
    // From the limit of encrypting file systems to the usual one.
    if (isName) checkName(bytes, 1 + data[0] * std::size_t{251}, 64 + data[1] % 182);
    return 0;
}
