// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/Arguments.h"
#include "cli/EndRequest.h"
#include "platform/Storage.h"

namespace zelk::cli {

/// Before anything is opened: gives standard streams that are closed a descriptor that refuses what they are for, so
/// that no file takes their place; has a closed pipe and a file that may not grow tell themselves as failures; and
/// takes names for UTF-8.
void prepareProcess();

/// Tells what `--help` or `--version` ask for, or what is wrong with the words. Returns the exit status.
int answer(const Arguments& arguments);

/// Surveys, and writes what was asked for. Returns the exit status: 0, EX_NOINPUT for a root that is no readable
/// folder, EX_IOERR for what cannot be written, 128 and the number of a signal. The services may still be in use after
/// a signal.
int survey(const Storage& storage, const Arguments& arguments, EndRequest& end);

}  // namespace zelk::cli
