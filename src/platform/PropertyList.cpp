// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"

#include <plist/plist.h>

#include <cstddef>
#include <cstdint>
#include <utility>

#include "platform/PropertyListLimits.h"
#include "platform/Utf8.h"

namespace zelk {

namespace {

// No program has so many arguments, and getting one by its place may take time in proportion to that.
constexpr std::uint32_t mostTexts = 10'000;

std::optional<std::string> textOf(plist_t node) {
    if (node == nullptr || plist_get_node_type(node) != PLIST_STRING) return std::nullopt;
    // The function that copies the text ends the process for one with a zero byte.
    std::uint64_t length = 0;
    const char* const value = plist_get_string_ptr(node, &length);
    if (value == nullptr) return std::nullopt;
    const std::string_view text(value, static_cast<std::size_t>(length));
    if (!isUtf8(text) || text.find('\0') != std::string_view::npos) return std::nullopt;
    return std::string(text);
}

}  // namespace

void PropertyList::Release::operator()(void* node) const {
    plist_free(node);
}

std::optional<PropertyList> PropertyList::parse(std::string_view bytes) {
    if (!isModestPropertyList(bytes)) return std::nullopt;
    // The functions that know both forms have other parameters in later versions of libplist.
    plist_t top = nullptr;
    const auto length = static_cast<std::uint32_t>(bytes.size());
    if (isBinaryPropertyList(bytes))
        plist_from_bin(bytes.data(), length, &top);
    else
        plist_from_xml(bytes.data(), length, &top);
    PropertyList list(top);
    if (top == nullptr || plist_get_node_type(top) != PLIST_DICT) return std::nullopt;
    return list;
}

std::optional<std::string> PropertyList::text(const std::string& key) const {
    return textOf(plist_dict_get_item(top_.get(), key.c_str()));
}

std::optional<std::vector<std::string>> PropertyList::texts(const std::string& key) const {
    plist_t list = plist_dict_get_item(top_.get(), key.c_str());
    if (list == nullptr || plist_get_node_type(list) != PLIST_ARRAY) return std::nullopt;
    const std::uint32_t count = plist_array_get_size(list);
    if (count > mostTexts) return std::nullopt;
    std::vector<std::string> texts;
    for (std::uint32_t at = 0; at < count; ++at) {
        std::optional<std::string> text = textOf(plist_array_get_item(list, at));
        if (!text) return std::nullopt;
        texts.push_back(std::move(*text));
    }
    return texts;
}

}  // namespace zelk
