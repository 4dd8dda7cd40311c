// SPDX-License-Identifier: MIT
#include "system/AdminLines.h"

#include <algorithm>
#include <array>

#include "system/MaintenanceLines.h"

namespace zelk {

namespace {

struct AdminForm {
    const char* verb;
    std::string_view line;  ///< "%1" and "%2" are words that become arguments
};

constexpr std::array<AdminForm, 3> adminForms{{
    {"delete-snapshot", "/usr/bin/snapper -c %1 delete --sync %2"},
    {"thin-snapshots",
     "/usr/bin/snapper -c %1 cleanup --free-space 5000000000 number; "
     "/usr/bin/snapper -c %1 cleanup --free-space 5000000000 timeline"},
    {"remove-package", "DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --remove %1"},
}};

std::vector<std::string_view> separatedByBlanks(std::string_view line) {
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t blank = line.find(' ');
        words.push_back(line.substr(0, blank));
        if (blank == std::string_view::npos) return words;
        line.remove_prefix(blank + 1);
    }
}

/// Whether a shell takes the word for itself.
bool isPlainWord(std::string_view word) {
    return !word.empty() && std::all_of(word.begin(), word.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '+' ||
               c == '.' || c == '-';
    });
}

bool isPlaceholder(std::string_view word) {
    return word == "%1" || word == "%2";
}

/// The words of `line` that stand for the placeholders of `form`. Absent if the line differs elsewhere, if one is no
/// plain word, or if two different ones stand for the same placeholder.
std::optional<std::vector<std::string>> wordsInPlaces(std::string_view line, std::string_view form) {
    const std::vector<std::string_view> said = separatedByBlanks(line);
    const std::vector<std::string_view> expected = separatedByBlanks(form);
    if (said.size() != expected.size()) return std::nullopt;
    std::vector<std::string> words;
    for (std::size_t at = 0; at < said.size(); ++at) {
        if (!isPlaceholder(expected[at])) {
            if (said[at] != expected[at]) return std::nullopt;
            continue;
        }
        if (!isPlainWord(said[at])) return std::nullopt;
        const auto place = static_cast<std::size_t>(expected[at].back() - '1');
        if (place == words.size()) words.emplace_back(said[at]);
        if (words[place] != said[at]) return std::nullopt;
    }
    return words;
}

}  // namespace

std::optional<std::vector<std::string>> adminArguments(std::string_view line) {
    if (line == freeMemoryLine(SystemKind::desktopLinux)) return std::vector<std::string>{"free-memory"};
    for (const AdminForm& form : adminForms) {
        if (auto words = wordsInPlaces(line, form.line)) {
            words->insert(words->begin(), form.verb);
            return words;
        }
    }
    return std::nullopt;
}

}  // namespace zelk
