// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace zelk {

/// The size in bytes of the largest property list that is parsed. Those of agents and applications have a few
/// kilobytes.
inline constexpr std::size_t largestPropertyList = std::size_t{1} << 20;

/// Whether a parser can take these bytes, of either form, without harm: libplist releases nested containers by
/// recursion, parses the binary form by recursion, and copies an object for every reference to it, so that a small file
/// can overflow the stack or exhaust the memory. A pure function over any bytes; says nothing about whether they are a
/// property list at all.
bool isModestPropertyList(std::string_view bytes);

/// Whether the bytes are of the binary form.
bool isBinaryPropertyList(std::string_view bytes);

}  // namespace zelk
