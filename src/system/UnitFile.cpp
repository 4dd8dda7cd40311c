// SPDX-License-Identifier: MIT
#include "system/UnitFile.h"

#include <cstddef>

#include "platform/Text.h"
#include "platform/Utf8.h"

namespace zelk {

namespace {

/// Characters before a program that change how it is run: its name, errors that do not count, no expansion of
/// variables, rights, a shell.
constexpr std::string_view runPrefixes = "@-:+!|";

bool isComment(std::string_view line) {
    return line.starts_with('#') || line.starts_with(';');
}

/// Removes a line and those that continue it from `text`. A backslash at the end of a line stands for a blank; comments
/// between the lines are left out.
std::string takeLogicalLine(std::string_view& text) {
    std::string line;
    for (bool more = true; more && !text.empty();) {
        std::string_view part = trimmed(takeLine(text));
        if (isComment(part)) {
            if (line.empty()) return line;
            continue;
        }
        more = part.ends_with('\\');
        if (more) part.remove_suffix(1);
        line += part;
        if (more) line += ' ';
    }
    return line;
}

/// The character that a backslash and `letter` stand for; `letter` itself if they stand for nothing else.
char meaningOf(char letter) {
    constexpr std::string_view letters = "abfnrtvs";
    constexpr std::string_view meanings = "\a\b\f\n\r\t\v ";
    const std::size_t at = letters.find(letter);
    return at == std::string_view::npos ? letter : meanings[at];
}

/// The first word of a command, unquoted.
std::string firstWord(std::string_view line) {
    line = trimmed(line);
    std::string word;
    char quote = '\0';
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (c == '\\' && at + 1 < line.size())
            word += meaningOf(line[++at]);
        else if (c == quote)
            quote = '\0';
        else if (quote == '\0' && (c == '"' || c == '\''))
            quote = c;
        else if (quote == '\0' && blanks.find(c) != std::string_view::npos)
            break;
        else
            word += c;
    }
    word.erase(0, word.find_first_not_of(runPrefixes));
    return word;
}

}  // namespace

UnitFile parseUnitFile(std::string_view text) {
    UnitFile unit;
    std::string section;
    while (!text.empty()) {
        const std::string line = takeLogicalLine(text);
        const std::string_view whole = trimmed(line);
        if (whole.starts_with('[') && whole.ends_with(']')) {
            section = whole;
            continue;
        }
        const std::size_t equals = whole.find('=');
        if (equals == std::string_view::npos) continue;
        const std::string_view key = trimmed(whole.substr(0, equals));
        const std::string_view value = trimmed(whole.substr(equals + 1));
        if (section == "[Unit]" && key == "Description" && isUtf8(value)) unit.description = value;
        if (section == "[Service]" && key == "ExecStart") {
            if (value.empty())
                unit.program.clear();
            else if (unit.program.empty())
                unit.program = firstWord(value);
        }
    }
    return unit;
}

}  // namespace zelk
