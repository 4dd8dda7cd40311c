// SPDX-License-Identifier: MIT
#include "SymbolNames.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <optional>
#include <set>

namespace zelk::house {
namespace {

struct Token {
    enum Kind { word, text, mark } kind;
    std::string value;  ///< a text's without its quotes
    int line;
};
using Tokens = std::vector<Token>;

/// How a symbol's name with a dot in it begins; names without a dot are told by where they stand.
constexpr std::array<std::string_view, 60> kBeginnings = {"archivebox",
                                                          "arrow",
                                                          "battery",
                                                          "bell",
                                                          "bolt",
                                                          "calendar",
                                                          "chart",
                                                          "checkmark",
                                                          "chevron",
                                                          "circle",
                                                          "clock",
                                                          "cloud",
                                                          "cpu",
                                                          "cube",
                                                          "doc",
                                                          "ellipsis",
                                                          "eye",
                                                          "film",
                                                          "exclamationmark",
                                                          "externaldrive",
                                                          "flag",
                                                          "flame",
                                                          "folder",
                                                          "gauge",
                                                          "gear",
                                                          "gearshape",
                                                          "globe",
                                                          "hand",
                                                          "heart",
                                                          "house",
                                                          "info",
                                                          "internaldrive",
                                                          "leaf",
                                                          "line",
                                                          "link",
                                                          "list",
                                                          "lock",
                                                          "magnifyingglass",
                                                          "minus",
                                                          "moon",
                                                          "music",
                                                          "opticaldisc",
                                                          "paintbrush",
                                                          "pause",
                                                          "person",
                                                          "photo",
                                                          "play",
                                                          "plus",
                                                          "questionmark",
                                                          "rectangle",
                                                          "shield",
                                                          "sidebar",
                                                          "sparkle",
                                                          "square",
                                                          "star",
                                                          "stop",
                                                          "sun",
                                                          "trash",
                                                          "tray",
                                                          "xmark"};

Tokens tokensOf(const std::string& source) {
    const std::string text = withoutComments(source);
    Tokens tokens;
    int line = 1;
    for (std::size_t i = 0; i < text.size();) {
        const char c = text[i];
        std::size_t end = i + 1;
        if (c == '"') {
            while (end < text.size() && text[end] != '"' && text[end] != '\n') end += text[end] == '\\' ? 2 : 1;
            tokens.push_back({Token::text, text.substr(i + 1, end - i - 1), line});
            if (end < text.size() && text[end] == '"') ++end;
        } else if (isWord(c)) {
            while (end < text.size() && isWord(text[end])) ++end;
            tokens.push_back({Token::word, text.substr(i, end - i), line});
        } else if (c == '\n') {
            ++line;
        } else if (std::isspace(static_cast<unsigned char>(c)) == 0) {
            tokens.push_back({Token::mark, std::string(1, c), line});
        }
        i = end;
    }
    return tokens;
}

bool isMark(const Tokens& tokens, std::size_t at, std::string_view marks) {
    return at < tokens.size() && tokens[at].kind == Token::mark && marks.find(tokens[at].value) != marks.npos;
}

/// Where the bracket that opens at `at` closes.
std::size_t closing(const Tokens& tokens, std::size_t at) {
    int depth = 0;
    for (; at < tokens.size(); ++at) {
        if (isMark(tokens, at, "({[")) ++depth;
        if (isMark(tokens, at, ")}]") && --depth == 0) return at;
    }
    return tokens.size();
}

/// Where the value that begins at `at` ends: at a mark of its own depth or, in QML, with its line.
std::size_t valueEnd(const Tokens& tokens, std::size_t at, bool qml) {
    const int line = at < tokens.size() ? tokens[at].line : 0;
    for (; at < tokens.size(); ++at) {
        if (isMark(tokens, at, ";,)}]") || (qml && tokens[at].line != line)) return at;
        if (isMark(tokens, at, "({[")) at = closing(tokens, at);
    }
    return tokens.size();
}

/// Lower-case words joined by dots.
bool looksLikeSymbol(const std::string& text) {
    if (text.empty() || text.front() == '.' || text.back() == '.' || text.find("..") != text.npos) return false;
    if (std::isalpha(static_cast<unsigned char>(text.front())) == 0) return false;
    return std::all_of(text.begin(), text.end(),
                       [](unsigned char c) { return c == '.' || std::islower(c) != 0 || std::isdigit(c) != 0; });
}

bool beginsAsSymbol(const std::string& text) {
    const std::size_t dot = text.find('.');
    return dot != text.npos &&
           std::ranges::find(kBeginnings, std::string_view(text).substr(0, dot)) != kBeginnings.end();
}

/// "symbol", "icon", and what ends so, with or without "Name" or "Of" behind it.
bool meansSymbol(std::string word) {
    std::ranges::transform(word, word.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    while (word.ends_with('_')) word.pop_back();
    for (std::string_view ending : {"name", "of", "for"}) {
        if (word.ends_with(ending)) word.resize(word.size() - ending.size());
    }
    return word.ends_with("symbol") || word.ends_with("icon");
}

/// A record with a field for a symbol, so that a table of such records can be read.
struct Record {
    std::size_t field;   ///< which of its fields is the symbol
    std::size_t least;   ///< how many fields a row has to give
    std::size_t fields;  ///< how many it can give
};

/// The record of the struct whose "{" is at `open`, if it has a symbol.
std::optional<Record> recordAt(const Tokens& tokens, std::size_t open) {
    Record record{0, 0, 0};
    bool found = false;
    const std::size_t close = closing(tokens, open);
    for (std::size_t at = open + 1; at < close;) {
        std::size_t end = at, name = at;
        bool given = false, function = false;
        for (; end < close && !isMark(tokens, end, ";"); ++end) {
            if (isMark(tokens, end, "({")) {
                function = function || (tokens[end].value == "(" && !given);
                given = true;
                end = closing(tokens, end);
                if (function && isMark(tokens, end + 1, "{")) end = closing(tokens, end + 1);
                if (isMark(tokens, end, "}") && !isMark(tokens, end + 1, ";")) break;
            } else if (isMark(tokens, end, "=")) {
                given = true;
            } else if (!given && tokens[end].kind == Token::word) {
                name = end;
            }
        }
        const std::string& first = tokens[at].value;
        if (!function && first != "using" && first != "static" && first != "enum" && first != "struct") {
            if (meansSymbol(tokens[name].value)) {
                found = true;
                record.field = record.fields;
            }
            ++record.fields;
            if (!given) record.least = record.fields;
        }
        at = end + 1;
    }
    return found ? std::optional(record) : std::nullopt;
}

/// What stands in the row that opens at `open` at the place of the record's symbol.
std::optional<Token> symbolInRow(const Tokens& tokens, std::size_t open, const Record& record) {
    const std::size_t close = closing(tokens, open);
    std::optional<Token> symbol;
    std::size_t place = 0;
    for (std::size_t at = open + 1; at < close; ++place) {
        const std::size_t end = std::min(valueEnd(tokens, at, false), close);
        if (place == record.field && !isMark(tokens, at, "{")) {  // a row of rows is none
            for (std::size_t i = at; i < end; ++i) {
                if (!symbol && tokens[i].kind == Token::text) symbol = tokens[i];
            }
        }
        at = end + 1;
    }
    return place >= record.least && place <= record.fields ? symbol : std::nullopt;
}

class Finder {
public:
    Finder(const SourceFile& file, const std::vector<Record>& records)
        : path_(file.path), qml_(file.path.ends_with(".qml")), tokens_(tokensOf(file.text)) {
        for (std::size_t at = 0; at < tokens_.size(); ++at) {
            const Token& token = tokens_[at];
            if (token.kind == Token::text && looksLikeSymbol(token.value) && beginsAsSymbol(token.value)) take(token);
            if (token.kind == Token::word && meansSymbol(token.value)) takeGiven(at + 1);
            if (qml_ && token.value == "SymbolItem" && isMark(tokens_, at + 1, "{")) takeItem(at + 1);
            if (!qml_ && isMark(tokens_, at, "{")) takeRow(at, records);
        }
    }

    std::vector<SymbolUse> uses() && {
        std::vector<SymbolUse> uses;
        for (const auto& [line, name] : found_) uses.push_back({path_, line, name});
        return uses;
    }

private:
    void take(const Token& token) {
        if (token.kind == Token::text && looksLikeSymbol(token.value)) found_.emplace(token.line, token.value);
    }
    /// All texts of a value but those that something is compared with.
    void takeAll(std::size_t from, std::size_t to) {
        for (; from < to && from < tokens_.size(); ++from) {
            if (!isMark(tokens_, from - 1, "=") || !isMark(tokens_, from - 2, "=!")) take(tokens_[from]);
        }
    }
    /// What follows a word that means a symbol.
    void takeGiven(std::size_t at) {
        if (isMark(tokens_, at, ":=") && !isMark(tokens_, at + 1, ":=")) {
            takeAll(at + 1, valueEnd(tokens_, at + 1, qml_));
        } else if (isMark(tokens_, at, "{")) {
            if (!qml_) takeReturned(at, closing(tokens_, at));
            if (!qml_ && at + 1 < tokens_.size() && tokens_[at + 1].kind == Token::text) take(tokens_[at + 1]);
        } else if (isMark(tokens_, at, "(")) {
            const std::size_t close = closing(tokens_, at);
            takeAll(at + 1, close);
            std::size_t body = close + 1;
            while (body < tokens_.size() && tokens_[body].kind == Token::word) ++body;
            if (isMark(tokens_, body, "{")) takeReturned(body, closing(tokens_, body));
        }
    }
    void takeReturned(std::size_t from, std::size_t to) {
        for (; from < to; ++from) {
            if (tokens_[from].value == "return") takeAll(from + 1, valueEnd(tokens_, from + 1, false));
        }
    }
    void takeItem(std::size_t open) {
        const std::size_t close = closing(tokens_, open);
        for (std::size_t at = open + 1; at < close; ++at) {
            if (isMark(tokens_, at, "{")) at = closing(tokens_, at);
            if (at < close && tokens_[at].value == "name" && isMark(tokens_, at + 1, ":")) {
                takeAll(at + 2, valueEnd(tokens_, at + 2, true));
            }
        }
    }
    void takeRow(std::size_t open, const std::vector<Record>& records) {
        for (const Record& record : records) {
            if (const auto symbol = symbolInRow(tokens_, open, record)) take(*symbol);
        }
    }

    std::string path_;
    bool qml_;
    Tokens tokens_;
    std::set<std::pair<int, std::string>> found_;
};

/// The platform and the composition root name no symbols of ours, but icons of the system's.
bool mayNameSymbols(const std::string& path) {
    const bool code = path.ends_with(".cpp") || path.ends_with(".h") || path.ends_with(".qml") || path.ends_with(".mm");
    for (std::string_view folder : {"src/reclaim/", "src/system/", "src/state/", "src/ui/"}) {
        if (path.starts_with(folder)) return code;
    }
    return false;
}

std::string stemOf(const std::string& path) {
    return std::filesystem::path(path).replace_extension().string();
}

}  // namespace

std::vector<SymbolUse> symbolsNamedIn(const std::vector<SourceFile>& sources) {
    std::vector<std::pair<std::string, Record>> records;
    for (const SourceFile& file : sources) {
        if (!mayNameSymbols(file.path) || file.path.ends_with(".qml")) continue;
        const Tokens tokens = tokensOf(file.text);
        for (std::size_t at = 0; at + 2 < tokens.size(); ++at) {
            if (tokens[at].value != "struct" || !isMark(tokens, at + 2, "{")) continue;
            if (const auto record = recordAt(tokens, at + 2)) records.emplace_back(stemOf(file.path), *record);
        }
    }
    std::vector<SymbolUse> all;
    for (const SourceFile& file : sources) {
        if (!mayNameSymbols(file.path)) continue;
        std::vector<Record> own;
        for (const auto& [stem, record] : records) {
            if (stem == stemOf(file.path)) own.push_back(record);
        }
        const auto uses = Finder(file, own).uses();
        all.insert(all.end(), uses.begin(), uses.end());
    }
    return all;
}

}  // namespace zelk::house
