// SPDX-License-Identifier: MIT
// Reads ncdu's export format from its description: strings are bytes with JSON's escapes, a folder is an array that
// begins with its own object, a file is an object. Without recursion, and strict: anything else throws.
#pragma once

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zelk::cli {

struct NcduEntry {
    std::string name;       ///< bytes
    std::size_t depth = 0;  ///< 0 for the root
    bool isFolder = false;
    std::int64_t dsize = 0;
    bool readError = false;
    std::map<std::string, std::string> fields;  ///< all, as they were spelled
};

struct NcduFile {
    std::int64_t major = 0;
    std::int64_t minor = 0;
    std::map<std::string, std::string> header;
    std::vector<NcduEntry> entries;  ///< in the order of the file

    std::int64_t total() const {
        std::int64_t bytes = 0;
        for (const NcduEntry& entry : entries) bytes += entry.dsize;
        return bytes;
    }
    /// The first entry of that name; throws if there is none.
    const NcduEntry& named(std::string_view name) const {
        for (const NcduEntry& entry : entries)
            if (entry.name == name) return entry;
        throw std::runtime_error("no entry " + std::string(name));
    }
    bool has(std::string_view name) const {
        for (const NcduEntry& entry : entries)
            if (entry.name == name) return true;
        return false;
    }
};

class NcduReader {
public:
    explicit NcduReader(std::string_view bytes) : rest_(bytes) {}

    NcduFile all() {
        NcduFile file;
        expect('[');
        file.major = std::atoll(scalar().c_str());
        expect(',');
        file.minor = std::atoll(scalar().c_str());
        expect(',');
        file.header = object();
        expect(',');
        readFolders(file.entries);
        expect(']');
        if (rest_ != "\n") throw std::runtime_error("something stands behind the end");
        return file;
    }

private:
    [[noreturn]] void fail(const std::string& what) const {
        throw std::runtime_error(what + " before \"" + std::string(rest_.substr(0, 40)) + "\"");
    }

    bool takes(char c) {
        if (rest_.empty() || rest_.front() != c) return false;
        rest_.remove_prefix(1);
        return true;
    }

    void expect(char c) {
        if (!takes(c)) fail(std::string("no ") + c);
    }

    void readFolders(std::vector<NcduEntry>& entries) {
        std::size_t depth = 0;
        do {
            if (takes('[')) {
                entries.push_back(entry(depth, true));
                ++depth;
            } else if (takes(']')) {
                --depth;
                continue;
            } else {
                if (depth == 0) fail("no folder");
                entries.push_back(entry(depth, false));
            }
            while (depth > 0 && takes(']')) --depth;
        } while (depth > 0 && takes(','));
        if (depth > 0) fail("a folder is not closed");
    }

    NcduEntry entry(std::size_t depth, bool isFolder) {
        NcduEntry entry;
        entry.depth = depth;
        entry.isFolder = isFolder;
        entry.fields = object();
        if (!entry.fields.contains("name")) fail("no name");
        entry.name = entry.fields["name"];
        if (entry.fields.contains("dsize")) entry.dsize = std::atoll(entry.fields["dsize"].c_str());
        entry.readError = entry.fields.contains("read_error") && entry.fields["read_error"] == "true";
        return entry;
    }

    std::map<std::string, std::string> object() {
        std::map<std::string, std::string> fields;
        expect('{');
        do {
            const std::string key = string();
            expect(':');
            if (!fields.emplace(key, !rest_.empty() && rest_.front() == '"' ? string() : scalar()).second)
                fail("a key stands twice");
        } while (takes(','));
        expect('}');
        return fields;
    }

    std::string scalar() {
        const std::size_t length = std::min(rest_.find_first_of(",]}"), rest_.size());
        const std::string text(rest_.substr(0, length));
        if (text != "true" && text != "false" && (text.empty() || text.find_first_not_of("-0123456789") != text.npos))
            fail("no number");
        rest_.remove_prefix(length);
        return text;
    }

    std::string string() {
        std::string bytes;
        expect('"');
        while (!takes('"')) {
            if (rest_.empty()) fail("a string does not end");
            const char c = rest_.front();
            rest_.remove_prefix(1);
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) fail("a control character is not escaped");
            bytes += c == '\\' ? escaped() : c;
        }
        return bytes;
    }

    char escaped() {
        if (takes('"')) return '"';
        if (takes('\\')) return '\\';
        if (!takes('u') || rest_.size() < 4) fail("an unknown escape");
        const std::string digits(rest_.substr(0, 4));
        rest_.remove_prefix(4);
        const long value = std::strtol(digits.c_str(), nullptr, 16);
        if (digits.substr(0, 2) != "00" || (value >= 0x20 && value != 0x7F)) fail("an escape that is none");
        return static_cast<char>(value);
    }

    std::string_view rest_;
};

inline NcduFile readNcdu(std::string_view bytes) {
    return NcduReader(bytes).all();
}

}  // namespace zelk::cli
