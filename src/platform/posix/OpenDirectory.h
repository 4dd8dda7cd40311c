// SPDX-License-Identifier: MIT
// Opening directories by descriptor. All functions give -1 on failure and set errno.
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// Opens the scan root `path`, of any length. Links are followed: a root that is a link is the folder behind it.
int openRootDirectory(const std::string& path);

/// The same for a directory in which only names are to be looked up: it need not be readable, and cannot be listed.
int openForLookups(const std::string& path);

/// Opens the directory `below` (relative, of any length; empty is `rootFd`'s own directory) under `rootFd`. No
/// component may be a symbolic link and none may lead up, so neither a tree that changes meanwhile nor ".." leads
/// outside.
int openDirectoryBeneath(int rootFd, std::string_view below);

/// The same for a directory in which only names are to be looked up.
int openForLookupsBeneath(int rootFd, std::string_view below);

/// Opens the subdirectory `name` of `parentFd`, which must not be a link.
int openSubdirectory(int parentFd, std::string_view name);

}  // namespace zelk
