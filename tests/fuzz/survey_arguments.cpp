// SPDX-License-Identifier: MIT
// Gives arbitrary bytes, divided at NUL, to zelk-survey as its arguments, and shows each of them as it would be shown
// on a terminal.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Arguments.h"
#include "cli/VisibleText.h"
#include "platform/Utf8.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void requireHarmless(std::string_view text) {
    require(zelk::isUtf8(text));
    require(std::none_of(text.begin(), text.end(),
                         [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }));
}

void requireShown(const std::string& word) {
    const std::string text = zelk::cli::visibleText(word);
    requireHarmless(text);
    for (const std::size_t columns : {std::size_t{0}, std::size_t{2}, std::size_t{7}, std::size_t{40}}) {
        const std::string end = zelk::cli::endWithin(text, columns);
        requireHarmless(end);
        require(zelk::cli::columnsOf(end) <= columns);
    }
}

bool isAmong(const std::vector<std::string>& words, const std::string& word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::string> words;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\0'), rest.size());
        words.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        requireShown(words.back());
    }
    const zelk::cli::Arguments arguments = zelk::cli::parseArguments(words);
    requireHarmless(arguments.refusal);
    if (!arguments.refusal.empty()) {
        require(arguments.refusal.ends_with('.'));
    } else if (arguments.action == zelk::cli::Arguments::Action::survey) {
        require(!arguments.roots.empty() && !(arguments.json && arguments.exportsToOutput()));
        for (const std::string& root : arguments.roots) require(!root.empty() && isAmong(words, root));
        if (arguments.ncdu)
            require(!arguments.ncdu->empty() &&
                    (isAmong(words, *arguments.ncdu) || isAmong(words, "--ncdu=" + *arguments.ncdu)));
        require(!arguments.json || isAmong(words, "--json"));
    }
    return 0;
}
