// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as a desktop entry, with the locales in the first line, and as a process's control group.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DesktopEntry.h"
#include "platform/Utf8.h"
#include "platform/linux/apps/RunningProcesses.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

bool isNoLongerThan(const std::string& word, std::string_view text) {
    return word.size() <= text.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t end = std::min(input.find('\n'), input.size());
    const std::string_view locale = input.substr(0, end);
    const std::string_view text = input.substr(std::min(end + 1, input.size()));

    const std::vector<std::string> locales = zelk::localesOf(locale);
    require(locales.size() <= 4);
    for (const std::string& one : locales) require(!one.empty() && locale.starts_with(one.substr(0, one.find('@'))));

    const auto entry = zelk::parseDesktopEntry(text, locales);
    if (entry) {
        require(zelk::isUtf8(entry->name));
        require(isNoLongerThan(entry->name, text) && isNoLongerThan(entry->tryExec, text));
        std::size_t length = 0;
        for (const std::string& word : entry->command) length += word.size();
        require(length <= text.size());
        require(text.find("[Desktop Entry]") != std::string_view::npos);
        // Other locales change only the name.
        const auto plain = zelk::parseDesktopEntry(text, {});
        require(plain && plain->command == entry->command && plain->tryExec == entry->tryExec &&
                plain->isApplication == entry->isApplication && plain->hidden == entry->hidden &&
                plain->noDisplay == entry->noDisplay && plain->staysOff == entry->staysOff);
        // Other groups are not read.
        const auto more = zelk::parseDesktopEntry(std::string(text) + "\n[Other]\nName=Other\nHidden=true\n", locales);
        require(more && more->name == entry->name && more->hidden == entry->hidden);
    }
    for (const std::string& id : zelk::applicationsOfControlGroup(text)) require(id.size() <= text.size() + 1);
    return 0;
}
