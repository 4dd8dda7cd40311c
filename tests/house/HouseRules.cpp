// SPDX-License-Identifier: MIT
#include "HouseRules.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <optional>

namespace zelk::house {
namespace {

constexpr std::array<std::string_view, 8> kLayers = {"platform", "scan", "reclaim", "system",
                                                     "state",    "ui",   "app",     "cli"};
constexpr std::array<std::string_view, 5> kRooms = {"theme", "controls", "charts", "screens", "shell"};
constexpr std::array<std::string_view, 3> kSystems = {"linux", "macos", "posix"};
constexpr int kMaxLines = 500;
constexpr int kMaxQmlLines = 300;
constexpr int kMaxMainLines = 100;

std::string folderOf(const std::string& path) {
    return std::filesystem::path(path).parent_path().string();
}

/// The place of the layer that a path from src/ lies in; none for a header that is not the house's.
std::optional<std::size_t> layerOf(std::string_view path) {
    const auto found = std::find(kLayers.begin(), kLayers.end(), path.substr(0, path.find('/')));
    if (found == kLayers.end() || path.find('/') == std::string_view::npos) return std::nullopt;
    return static_cast<std::size_t>(found - kLayers.begin());
}

/// The place of the room of ui/ that a path from src/ lies in.
std::optional<std::size_t> roomOf(std::string_view path) {
    if (!path.starts_with("ui/")) return std::nullopt;
    path.remove_prefix(3);
    const auto found = std::find(kRooms.begin(), kRooms.end(), path.substr(0, path.find('/')));
    if (found == kRooms.end()) return std::nullopt;
    return static_cast<std::size_t>(found - kRooms.begin());
}

/// Whether a path from src/ lies in zelk-admin, which runs as root and stands apart from the layers.
bool isAdmin(std::string_view path) {
    return path.starts_with("admin/");
}

/// The path of a source from src/, or nothing for a file elsewhere.
std::optional<std::string> inSource(const std::string& path) {
    if (!path.starts_with("src/")) return std::nullopt;
    return path.substr(4);
}

/// Whether a file of one layer may not include one of the other. The program for the terminal stands beside the
/// interface: it knows neither that nor the application, and nothing knows it.
bool standsToTheRight(std::size_t target, std::size_t layer) {
    constexpr std::size_t lastForAll = 4;
    if (kLayers[layer] == "cli") return target > lastForAll && target != layer;
    return target > layer;
}

/// "linux", "macos" or "posix" for a path in that folder of platform/, otherwise empty.
std::string_view systemOf(std::string_view path) {
    for (std::string_view system : kSystems) {
        const std::string folder = "platform/" + std::string(system) + "/";
        if (path.starts_with(folder)) return system;
    }
    return {};
}

/// Whether the file at this path from src/ is an algorithm or an interface of the standard library alone.
bool isQtFree(const std::string& path) {
    if (path.starts_with("platform/")) return systemOf(path).empty();
    return path.starts_with("scan/") || path.starts_with("reclaim/") || path.starts_with("system/") || isAdmin(path);
}

bool isUpper(char c) {
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}

/// <QString>, <QtCore/...>, and <qobject.h> or the like, which no other library has at its top.
bool isQtHeader(const std::string& target) {
    const bool folder = target.find('/') != std::string::npos;
    if (target.starts_with("Qt") && target.size() > 2 && isUpper(target[2])) return true;
    if (target.starts_with("Q") && target.size() > 1 && isUpper(target[1])) return !folder;
    return target.starts_with("q") && target.ends_with(".h") && !folder;
}

bool isQtQuickHeader(const std::string& target) {
    return target.starts_with("QtQuick") || target.starts_with("QQuick");
}

bool isMain(const std::string& path) {
    return path == "app/main.cpp" || path == "cli/main.cpp";
}

int countLines(std::string_view text) {
    const auto breaks = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    return text.empty() || text.back() == '\n' ? breaks : breaks + 1;
}

std::string_view skipBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

/// What this line, which is free of comments, includes into the file at `path`; see includesOf.
std::optional<std::string> includeIn(std::string_view line, const std::string& path) {
    line = skipBlanks(line);
    if (!line.starts_with('#')) return std::nullopt;
    line = skipBlanks(line.substr(1));
    if (!line.starts_with("include") && !line.starts_with("import")) return std::nullopt;
    const std::size_t open = line.find_first_of("<\"");
    if (open == std::string_view::npos) return std::nullopt;
    const bool quoted = line[open] == '"';
    const std::size_t close = line.find(quoted ? '"' : '>', open + 1);
    if (close == std::string_view::npos) return std::nullopt;

    std::filesystem::path target(line.substr(open + 1, close - open - 1));
    target = target.lexically_normal();
    // Not from src/ and not a system header: relative to the file itself.
    const bool isFromSource = layerOf(target.string()) || isAdmin(target.string());
    if (const auto own = inSource(path); quoted && own && !isFromSource && !isQtHeader(target.string())) {
        const auto resolved = (std::filesystem::path(folderOf(*own)) / target).lexically_normal();
        if (layerOf(resolved.string()) || isAdmin(resolved.string())) return resolved.string();
    }
    return target.string();
}

/// Where `word` first stands in `text` as a whole word.
std::size_t findWord(std::string_view text, std::string_view word) {
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
        const std::size_t after = at + word.size();
        if ((at == 0 || !isWord(text[at - 1])) && (after == text.size() || !isWord(text[after]))) return at;
    }
    return std::string_view::npos;
}

}  // namespace

bool isWord(char c) {
    return c == '_' || std::isalnum(static_cast<unsigned char>(c)) != 0;
}

std::string withoutComments(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        const std::string_view rest = text.substr(i);
        if (rest.starts_with("//")) {
            i = std::min(text.find('\n', i), text.size());
        } else if (rest.starts_with("/*")) {
            const std::size_t close = text.find("*/", i + 2);
            const std::size_t end = close == std::string_view::npos ? text.size() : close + 2;
            const std::string_view comment = text.substr(i, end - i);
            out.append(static_cast<std::size_t>(std::count(comment.begin(), comment.end(), '\n')), '\n');
            i = end;
        } else if (text[i] == '"') {
            std::size_t end = i + 1;
            while (end < text.size() && text[end] != '"' && text[end] != '\n') end += text[end] == '\\' ? 2 : 1;
            end = std::min(end + 1, text.size());
            out.append(text.substr(i, end - i));
            i = end;
        } else {
            out.push_back(text[i++]);
        }
    }
    return out;
}

std::vector<Include> includesOf(const SourceFile& file) {
    const std::string text = withoutComments(file.text);
    std::vector<Include> includes;
    int line = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        ++line;
        if (const auto target = includeIn(std::string_view(text).substr(start, end - start), file.path)) {
            includes.push_back({*target, line});
        }
        start = end + 1;
    }
    return includes;
}

std::vector<Violation> checkLayers(const SourceFile& file) {
    const auto own = inSource(file.path);
    const auto layer = own ? layerOf(*own) : std::nullopt;
    if (!layer && !(own && isAdmin(*own))) return {};

    std::vector<Violation> found;
    for (const Include& include : includesOf(file)) {
        const auto target = layerOf(include.target);
        if (isAdmin(*own) ? target.has_value() : isAdmin(include.target)) {
            found.push_back({file.path, include.line,
                             "includes " + include.target + ", but admin stands apart from the rest of the house"});
        }
        if (!layer) continue;
        if (!target) continue;
        if (standsToTheRight(*target, *layer)) {
            found.push_back(
                {file.path, include.line,
                 std::string(kLayers[*layer]) + " includes " + include.target + ", which does not stand to its left"});
        }
        const auto room = roomOf(*own);
        if (const auto targetRoom = roomOf(include.target); room && targetRoom && *targetRoom > *room) {
            found.push_back(
                {file.path, include.line,
                 "ui/" + std::string(kRooms[*room]) + " includes " + include.target + ", which stands to its right"});
        }
        const std::string_view system = systemOf(include.target);
        if (system.empty() || kLayers[*layer] == "app") continue;
        const std::string_view ownSystem = systemOf(*own);
        // What both share may look at one system's, under a condition of the preprocessor.
        const bool shares = !ownSystem.empty() && (system == "posix" || ownSystem == "posix");
        const bool allowed = ownSystem == system || shares;
        if (!allowed) {
            found.push_back({file.path, include.line,
                             "includes " + include.target + ", which only that system's own folder and app may"});
        }
    }
    return found;
}

std::vector<Violation> checkQt(const SourceFile& file) {
    const auto own = inSource(file.path);
    if (!own) return {};
    const bool quickAllowed = own->starts_with("ui/") || own->starts_with("app/");

    std::vector<Violation> found;
    for (const Include& include : includesOf(file)) {
        if (isQtFree(*own)) {
            const bool viaHouse = layerOf(include.target) && !isQtFree(include.target);
            if (isQtHeader(include.target) || viaHouse) {
                found.push_back({file.path, include.line,
                                 "has to do without Qt but includes " + include.target +
                                     (viaHouse ? ", which may include it" : "")});
            }
        } else if (!quickAllowed && isQtQuickHeader(include.target)) {
            found.push_back({file.path, include.line, "includes " + include.target + ", but only ui knows Qt Quick"});
        }
    }
    return found;
}

std::vector<Violation> checkCompositionRoot(const SourceFile& file) {
    const auto own = inSource(file.path);
    if (!own || own->starts_with("app/") || own->starts_with("platform/")) return {};
    const std::string text = withoutComments(file.text);
    std::vector<Violation> found;
    for (const std::string name : {"NativePlatform", "NativeStorage"}) {
        if (name == "NativeStorage" && *own == "cli/main.cpp") continue;
        const std::size_t at = findWord(text, name);
        if (at == std::string::npos) continue;
        const auto breaks = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
        found.push_back({file.path, 1 + static_cast<int>(breaks),
                         "names " + name + "; only app, the main.cpp of cli, bench, tools and tests may"});
    }
    return found;
}

std::vector<Violation> checkForm(const SourceFile& file) {
    std::vector<Violation> found;

    // The first line, or the second under a "#!".
    std::string_view head = file.text;
    if (head.starts_with("#!")) head.remove_prefix(std::min(head.find('\n'), head.size() - 1) + 1);
    head = head.substr(0, head.find('\n'));
    const bool slashes = file.path.ends_with(".h") || file.path.ends_with(".cpp") || file.path.ends_with(".mm") ||
                         file.path.ends_with(".qml") || file.path.ends_with(".js") || file.path.ends_with(".mjs");
    const std::string_view licence = slashes ? "// SPDX-License-Identifier: MIT" : "# SPDX-License-Identifier: MIT";
    if (head != licence) found.push_back({file.path, 1, "does not begin with \"" + std::string(licence) + "\""});

    int limit = kMaxLines;
    if (file.path.ends_with(".qml")) limit = kMaxQmlLines;
    if (const auto own = inSource(file.path); own && isMain(*own)) limit = kMaxMainLines;
    if (const int lines = countLines(file.text); lines > limit) {
        found.push_back(
            {file.path, 0, "has " + std::to_string(lines) + " lines; " + std::to_string(limit) + " are the most"});
    }
    return found;
}

}  // namespace zelk::house
