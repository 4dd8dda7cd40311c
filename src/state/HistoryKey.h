// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

/// Encodes a path, which is bytes, as a key of the history file, which is JSON and so holds UTF-8.
///
/// A UTF-8 path is its own key. Any other becomes a file URL with percent-escaped bytes ("/a/\xFF" is "file:///a/%FF").
/// No absolute path begins like that, so no two paths share a key. A path that only looks like such a URL is escaped
/// when written and taken verbatim when read, so that every path survives the round trip.
std::string historyKey(const std::string& path);
std::string pathOfHistoryKey(const std::string& key);

}  // namespace zelk
