// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>

namespace zelk {

/// A path as a key of the history file, which is JSON and so holds text, while a path is bytes.
///
/// A path that is text stands there as it is. Any other becomes a file URL with its bytes percent-escaped
/// ("/a/\xFF" is "file:///a/%FF"): no absolute path begins like that, so no two paths share a key. Whatever begins like
/// one and is none of ours is escaped again or taken as it stands, so that every path comes back as it went in.
QString historyKey(const std::string& path);
std::string pathOfHistoryKey(const QString& key);

}  // namespace zelk
