// SPDX-License-Identifier: MIT
// Opens directories. All functions return -1 and set errno on failure.
#pragma once

#include <string>
#include <string_view>

namespace zelk {

/// Opens the scan root `path`, of any length, following links.
int openRootDirectory(const std::string& path);

/// Like openRootDirectory(), for lookups only: the directory need not be readable and cannot be listed.
int openForLookups(const std::string& path);

/// Opens the directory `below` (relative, of any length; empty means `rootFd` itself) under `rootFd`. Refuses symbolic
/// links and ".." in every component, so a tree that changes meanwhile cannot lead outside.
int openDirectoryBeneath(int rootFd, std::string_view below);

/// Like openDirectoryBeneath(), for lookups only.
int openForLookupsBeneath(int rootFd, std::string_view below);

/// Opens the subdirectory `name` of `parentFd`, which must not be a link.
int openSubdirectory(int parentFd, std::string_view name);

}  // namespace zelk
