// SPDX-License-Identifier: MIT
// Which program the command of a desktop entry starts. Pure functions over bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// What stands behind the last slash; all of a text without one.
std::string_view fileNameOf(std::string_view path);

/// Whether the program is an interpreter or launcher that many applications share, so that neither its process nor its
/// name identifies any of them. Versions in the name do not matter ("python3.11").
bool isSharedLauncher(std::string_view program);

/// The file that the command gives an interpreter to run, as it names it: "/x.py" of "python3 /x.py". Empty unless that
/// is the first word behind a well-known interpreter, or behind the "-jar" of java: what follows other options may be
/// anything, and other launchers open documents.
std::string interpretedFile(const std::vector<std::string>& words);

/// Drops "env" with its options and assignments from the start of a command.
std::vector<std::string> withoutEnv(std::vector<std::string> words);

/// The name of the program that a command starts, behind "env" too; of "env" alone that. Empty for no words.
std::string toolName(const std::vector<std::string>& words);

}  // namespace zelk
