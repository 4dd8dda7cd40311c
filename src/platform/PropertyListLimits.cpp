// SPDX-License-Identifier: MIT
#include "platform/PropertyListLimits.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace zelk {

namespace {

constexpr std::size_t deepestNesting = 64;
constexpr std::size_t mostContainers = 10'000;

// What the objects of a binary list may take, every one counted as often as it is referred to: about as much memory as
// the parser needs for them.
constexpr std::uint64_t mostBytes = std::uint64_t{16} << 20;
constexpr std::uint64_t bytesPerObject = 64;

// The binary form ends with the width of the numbers in it, the number of objects, the first one, and where the table
// of their places is.
constexpr std::size_t trailerBytes = 32;
constexpr std::size_t placeWidthAt = 6;
constexpr std::size_t referenceWidthAt = 7;
constexpr std::size_t objectCountAt = 8;
constexpr std::size_t topAt = 16;
constexpr std::size_t tableAt = 24;
constexpr std::size_t widestNumber = 8;

/// Removes everything up to and including `end` from `text`, or all of it.
void skipPast(std::string_view& text, std::string_view end) {
    const std::size_t at = text.find(end);
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + end.size());
}

/// Removes everything up to and including `end` from `text`, or all of it, and returns what came before. Between double
/// quotes, of which the parser knows no others, it does not end.
std::string_view takeUnquoted(std::string_view& text, std::string_view end) {
    std::size_t at = 0;
    for (bool quoted = false; at < text.size() && (quoted || !text.substr(at).starts_with(end)); ++at)
        if (text[at] == '"') quoted = !quoted;
    const std::string_view taken = text.substr(0, at);
    text.remove_prefix(std::min(at + end.size(), text.size()));
    return taken;
}

bool isModestXml(std::string_view text) {
    std::size_t depth = 0;
    std::size_t containers = 0;
    for (;;) {
        skipPast(text, "<");
        if (text.empty()) return true;
        if (text.starts_with("!--")) {
            text.remove_prefix(3);
            skipPast(text, "-->");
        } else if (text.starts_with("![CDATA[")) {
            skipPast(text, "]]>");
        } else if (text.starts_with('?')) {
            takeUnquoted(text, "?>");
        } else {
            std::string_view tag = takeUnquoted(text, ">");
            // What a document type defines in brackets may hold anything; lists of the system have none.
            if (tag.starts_with("!DOCTYPE") && tag.find('[') != std::string_view::npos) return false;
            const bool isEmpty = tag.ends_with('/');
            const bool closes = tag.starts_with('/');
            if (closes) tag.remove_prefix(1);
            const std::string_view name = tag.substr(0, tag.find_first_of(" \t\r\n/"));
            if (name != "array" && name != "dict") continue;
            if (closes) {
                if (depth > 0) --depth;
            } else if (++containers > mostContainers || depth + 1 > deepestNesting) {
                return false;
            } else if (!isEmpty) {
                ++depth;
            }
        }
    }
}

/// The objects of a binary property list, as far as their sizes and references.
class BinaryObjects {
public:
    explicit BinaryObjects(std::string_view bytes) : bytes_(bytes) {}

    /// Follows every reference, as often as a parser does.
    bool areModest() const {
        if (bytes_.size() < trailerBytes) return false;
        const std::size_t trailer = bytes_.size() - trailerBytes;
        const auto top = number(trailer + topAt, widestNumber);
        if (!top) return false;
        std::vector<Pending> pending{{*top, 0}};
        std::uint64_t taken = 0;
        while (!pending.empty()) {
            const Pending next = pending.back();
            pending.pop_back();
            const std::optional<Object> object = objectAt(next.index);
            if (!object || (object->references > 0 && next.depth == deepestNesting)) return false;
            taken += bytesPerObject * (1 + object->references) + object->bytes;
            if (taken > mostBytes) return false;
            const std::size_t width = byteAt(trailer + referenceWidthAt);
            for (std::uint64_t at = 0; at < object->references; ++at) {
                const auto index = number(object->start + at * width, width);
                if (!index) return false;
                pending.push_back({*index, next.depth + 1});
            }
        }
        return true;
    }

private:
    struct Pending {
        std::uint64_t index;
        std::size_t depth;
    };
    struct Object {
        std::uint64_t start = 0;       ///< where its content begins
        std::uint64_t references = 0;  ///< to other objects; within the file
        std::uint64_t bytes = 0;       ///< of text or data; within the file
    };

    std::size_t byteAt(std::size_t at) const { return static_cast<unsigned char>(bytes_[at]); }

    std::optional<std::uint64_t> number(std::uint64_t at, std::size_t width) const {
        if (width == 0 || width > widestNumber || at > bytes_.size() || bytes_.size() - at < width) return std::nullopt;
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < width; ++i) value = value << 8 | byteAt(static_cast<std::size_t>(at) + i);
        return value;
    }

    std::optional<Object> objectAt(std::uint64_t index) const {
        const std::size_t trailer = bytes_.size() - trailerBytes;
        const std::size_t placeWidth = byteAt(trailer + placeWidthAt);
        const auto count = number(trailer + objectCountAt, widestNumber);
        const auto table = number(trailer + tableAt, widestNumber);
        // No more objects than bytes: what follows cannot overflow.
        if (!count || !table || *count > bytes_.size() || *table > bytes_.size() || index >= *count)
            return std::nullopt;
        const auto place = number(*table + index * placeWidth, placeWidth);
        if (!place || *place >= trailer) return std::nullopt;

        const std::size_t kind = byteAt(static_cast<std::size_t>(*place)) >> 4;
        const bool isContainer = kind == 0xA || kind == 0xB || kind == 0xC || kind == 0xD;
        const bool isText = kind == 0x4 || kind == 0x5 || kind == 0x6;
        Object object{*place + 1, 0, 0};
        if (!isContainer && !isText) return object;
        std::uint64_t length = byteAt(static_cast<std::size_t>(*place)) & 0xF;
        if (length == 0xF) {  // a number follows, whose own first byte says how wide it is
            if (object.start >= trailer) return std::nullopt;
            const std::size_t width = std::size_t{1} << (byteAt(static_cast<std::size_t>(object.start)) & 0xF);
            const auto told = number(object.start + 1, width);
            if (!told) return std::nullopt;
            length = *told;
            object.start += 1 + width;
        }
        if (length > bytes_.size()) return std::nullopt;
        if (kind == 0x6 || kind == 0xD) length *= 2;  // units of two bytes; keys and values
        const std::uint64_t unit = isContainer ? byteAt(trailer + referenceWidthAt) : 1;
        if (length * unit > bytes_.size() - object.start) return std::nullopt;
        (isContainer ? object.references : object.bytes) = length;
        return object;
    }

    std::string_view bytes_;
};

}  // namespace

bool isBinaryPropertyList(std::string_view bytes) {
    return bytes.starts_with("bplist");
}

bool isModestPropertyList(std::string_view bytes) {
    if (bytes.size() > largestPropertyList) return false;
    return isBinaryPropertyList(bytes) ? BinaryObjects(bytes).areModest() : isModestXml(bytes);
}

}  // namespace zelk
