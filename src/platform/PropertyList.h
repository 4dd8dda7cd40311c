// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// A property list whose top is a dictionary, such as the description of a background item or of an application.
/// Immutable; safe from any thread.
class PropertyList {
public:
    /// Parses a property list of the XML or the binary form. Absent for anything else, for a list whose top is no
    /// dictionary, and for one that is too large, too deep or damaged.
    static std::optional<PropertyList> parse(std::string_view bytes);

    /// The value of a key. Absent if there is no such key, if its value is no text, or if that is not UTF-8 or contains
    /// a zero byte. A key that occurs more than once has one of its values.
    std::optional<std::string> text(const std::string& key) const;
    /// The value of a key that is a list of texts; may be empty. Absent if anything in it is no text, as text() says.
    std::optional<std::vector<std::string>> texts(const std::string& key) const;

private:
    struct Release {
        void operator()(void* node) const;
    };

    explicit PropertyList(void* top) : top_(top) {}

    std::unique_ptr<void, Release> top_;  ///< a node of libplist
};

}  // namespace zelk
