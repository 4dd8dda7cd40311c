// SPDX-License-Identifier: MIT
#include "platform/DesktopEntry.h"

#include <algorithm>
#include <cstddef>

#include "platform/Text.h"
#include "platform/Utf8.h"

namespace zelk {

namespace {

/// Decodes the escapes of a value; a backslash before any other character is kept.
std::string withoutEscapes(std::string_view value) {
    constexpr std::string_view letters = "sntr\\";
    constexpr std::string_view meanings = " \n\t\r\\";
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const std::size_t letter =
            value[at] == '\\' && at + 1 < value.size() ? letters.find(value[at + 1]) : std::string_view::npos;
        if (letter == std::string_view::npos) {
            text += value[at];
        } else {
            text += meanings[letter];
            ++at;
        }
    }
    return text;
}

/// Splits a command at blanks. In double quotes, blanks are kept and a backslash quotes the next character.
std::vector<std::string> splitCommand(std::string_view line) {
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (!quoted && blanks.find(c) != std::string_view::npos) {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        if (c == '"') {
            quoted = !quoted;
        } else if (quoted && c == '\\' && at + 1 < line.size()) {
            words.back() += line[++at];
        } else {
            words.back() += c;
        }
    }
    return words;
}

/// A key with an optional locale in brackets.
struct Key {
    explicit Key(std::string_view text) : name(text) {
        const std::size_t bracket = text.find('[');
        if (bracket == std::string_view::npos || !text.ends_with(']')) return;
        name = trimmed(text.substr(0, bracket));
        locale = text.substr(bracket + 1, text.size() - bracket - 2);
    }

    std::string_view name;
    std::optional<std::string_view> locale;
};

class EntryParser {
public:
    explicit EntryParser(const std::vector<std::string>& locales) : locales_(locales), nameRank_(locales.size() + 1) {}

    void take(const Key& key, std::string_view value) {
        if (key.name == "Name") return takeName(key.locale, value);
        if (key.locale) return;
        if (key.name == "Exec") entry.command = splitCommand(withoutEscapes(value));
        if (key.name == "TryExec") entry.tryExec = withoutEscapes(value);
        if (key.name == "Type") entry.isApplication = value == "Application";
        if (key.name == "Hidden") entry.hidden = isTrue(value);
        if (key.name == "NoDisplay") entry.noDisplay = isTrue(value);
        if (key.name == "X-GNOME-Autostart-enabled") entry.staysOff = value == "false" || value == "0";
        if (key.name == "Icon") entry.icon = withoutEscapes(value);
        if (key.name == "X-Flatpak") entry.flatpak = withoutEscapes(value);
        if (key.name == "X-AppImage-Name") entry.appImage = withoutEscapes(value);
    }

    DesktopEntry entry;

private:
    static bool isTrue(std::string_view value) { return value == "true" || value == "1"; }

    void takeName(const std::optional<std::string_view>& locale, std::string_view value) {
        const auto found = locale ? std::find(locales_.begin(), locales_.end(), *locale) : locales_.end();
        if (locale && found == locales_.end()) return;
        const auto rank = static_cast<std::size_t>(found - locales_.begin());
        if (rank > nameRank_ || !isUtf8(value)) return;
        nameRank_ = rank;
        entry.name = withoutEscapes(value);
    }

    const std::vector<std::string>& locales_;
    std::size_t nameRank_;  ///< rank of the current name's locale; the largest for the unlocalized name
};

}  // namespace

std::optional<DesktopEntry> parseDesktopEntry(std::string_view text, const std::vector<std::string>& locales) {
    EntryParser parser(locales);
    bool inGroup = false;
    while (!text.empty()) {
        const std::string_view line = trimmed(takeLine(text));
        if (line.empty() || line.front() == '#') continue;
        if (line.front() == '[') {
            if (inGroup) break;  // actions and other groups follow
            if (line != "[Desktop Entry]") return std::nullopt;
            inGroup = true;
            continue;
        }
        if (!inGroup) return std::nullopt;
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        parser.take(Key(trimmed(line.substr(0, equals))), trimmed(line.substr(equals + 1)));
    }
    if (!inGroup) return std::nullopt;
    return std::move(parser.entry);
}

std::vector<std::string> localesOf(std::string_view locale) {
    std::string modifier;
    if (const std::size_t at = locale.find('@'); at != std::string_view::npos) {
        modifier = locale.substr(at);
        locale = locale.substr(0, at);
    }
    locale = locale.substr(0, locale.find('.'));
    if (locale.empty() || locale.front() == '_' || locale == "C" || locale == "POSIX") return {};
    std::vector<std::string> locales;
    const auto add = [&](std::string_view language) {
        if (!modifier.empty()) locales.push_back(std::string(language) + modifier);
        locales.emplace_back(language);
    };
    add(locale);
    if (const std::size_t country = locale.find('_'); country != std::string_view::npos) add(locale.substr(0, country));
    return locales;
}

}  // namespace zelk
