// SPDX-License-Identifier: MIT
// Access to the file system for the search for duplicates: which files there are, their sizes and their bytes.
//
// Paths and names are bytes. No step follows a symbolic link below the root of a walk, so a tree that changes meanwhile
// cannot lead outside.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ItemPath.h"
#include "platform/TrashedItem.h"

namespace zelk {

/// A point in time as the file system stores it, without the rounding of a TimePoint.
struct FileTime {
    std::int64_t seconds = 0;  ///< since 1970, of any sign
    std::int64_t nanoseconds = 0;

    bool operator==(const FileTime&) const = default;
};

/// Describes a file at one moment. Whatever changes its content changes its stamp too, unless both changes fall within
/// one tick of the file system's clock.
struct FileStamp {
    FileIdentity identity;
    std::int64_t size = 0;  ///< its length in bytes
    FileTime modified;
    FileTime changed;  ///< of its content or of its properties, such as its name

    bool operator==(const FileStamp&) const = default;
};

/// An entry of a folder: a subfolder or a regular file.
struct FolderEntry {
    std::string name;
    bool isFolder = false;
    std::int64_t size = 0;  ///< length of a file in bytes; 0 for a folder

    bool operator==(const FolderEntry&) const = default;
};

/// Walks through a folder and its subfolders, one at a time; begins in the root. Used by one thread.
class FolderWalk {
public:
    virtual ~FolderWalk() = default;
    /// The path of the root without links.
    virtual const std::string& root() const = 0;
    /// Identifies the current folder. Absent if that fails.
    virtual std::optional<FileIdentity> identity() = 0;
    /// The subfolders of the current folder, and its files of at least `smallest` bytes, by name in byte order. Leaves
    /// out what is hidden, what is no regular file, what is not on the disk but in a cloud, and where something else is
    /// mounted. Ends early if the folder cannot be read to its end.
    virtual std::vector<FolderEntry> list(std::int64_t smallest) = 0;
    /// Makes the subfolder `name` the current folder. False, with the current folder unchanged, if it cannot be opened,
    /// or if it is a link or a mount point by now. Pair every success with one leave().
    virtual bool enter(const std::string& name) = 0;
    virtual void leave() = 0;
};

/// A regular file that is open for reading, from its beginning. Used by one thread.
class FileReading {
public:
    virtual ~FileReading() = default;
    /// What it was when it was opened.
    virtual const FileStamp& stamp() const = 0;
    /// What it is now; absent on failure.
    virtual std::optional<FileStamp> stampNow() = 0;
    /// Reads the next bytes, at most `most`. Returns their number, 0 at the end; absent on failure.
    virtual std::optional<std::size_t> read(std::byte* buffer, std::size_t most) = 0;
    /// Has the system read these bytes into its cache, if they are not there yet. Changes nothing about read().
    virtual void prefetch(std::int64_t offset, std::int64_t bytes) = 0;
};

/// Opens folders and files. Blocking; safe from any thread. There are no reasons of failures.
class FileContents {
public:
    virtual ~FileContents() = default;
    /// Follows links to `root`; null if it cannot be opened as a folder.
    virtual std::unique_ptr<FolderWalk> walk(const std::string& root) = 0;
    /// Null if the file cannot be opened, or if it is no regular file. Neither waits for the other end of a pipe nor
    /// changes any time of the file but that of its last access.
    virtual std::unique_ptr<FileReading> open(const ItemPath& file) = 0;
    /// What is at this path now; absent if nothing or no regular file is.
    virtual std::optional<FileStamp> stamp(const ItemPath& file) = 0;
};

}  // namespace zelk
