// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

struct FileStatus;

/// A name in an open directory.
struct Place {
    int folder = -1;
    std::string name;
};

/// Whether `place` holds this very file now.
bool holds(const Place& place, const FileStatus& file);

/// Renames `from` to `to` without ever replacing anything. Returns 0 or the errno: EEXIST if `to` exists, EXDEV if it
/// is on another volume. On an error nothing has moved.
int moveWithoutReplacing(const Place& from, const Place& to);

/// Like moveWithoutReplacing(), but safe if other programs use the target folder. On volumes without RENAME_NOREPLACE
/// the former reserves the name and renames over its reservation, which another program may have written to by then.
/// This one links files at `to` and unlinks them at `from`, and fails on volumes without hard links.
int moveAmongOthers(const Place& from, const Place& to);

}  // namespace zelk
