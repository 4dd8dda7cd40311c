// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/ChildProcess.h"

namespace zelk {

/// What a person reads of a command that has ended. Output is shown as it is, line feed at the end included; output
/// that is not UTF-8 counts as none.

/// What stands before the output of an administrator's command that failed or was refused. Alone it is the answer where
/// such a command said nothing, or where there was none to run.
std::string refusedAnswer();

/// The output, or "done" if there is none; "cancelled" for an exit status other than 0; "failed: " and the reason if
/// nothing was started.
std::string textOfRun(const ChildOutcome& outcome);

/// The output; after "cancelled or failed: " for an exit status other than 0; "failed: " and the reason if nothing was
/// started.
std::string textOfAdminRun(const ChildOutcome& outcome);

}  // namespace zelk
