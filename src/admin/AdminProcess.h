// SPDX-License-Identifier: MIT
// What zelk-admin does to its process and with the system. One thread.
#pragma once

#include <string>
#include <vector>

namespace zelk {

/// Frees this process of what it inherited: it works in "/" with umask 022, reads nothing (standard input is
/// /dev/null), has only the two outputs besides (also on /dev/null where they were closed), and has no signal blocked,
/// handled or ignored, except that writing where nobody reads is an error instead of the end.
void leaveInheritanceBehind();

/// Runs the programs one after the other, whatever becomes of them, in adminEnvironment(). Returns the status of the
/// last, as a shell does for commands joined by ";", and 0 without any: that of exit; 128 and the number of a signal;
/// 127 for a program that could not be started, which standard error says.
int runInTurn(const std::vector<std::vector<std::string>>& programs);

/// Writes to disk what is unwritten and "3" to `control`, a file of the kernel's. Returns 0, or 1 if that failed, which
/// standard error says.
int dropCaches(const char* control);

/// Writes a line to standard error, in one piece.
void complain(const std::string& sentence);

}  // namespace zelk
