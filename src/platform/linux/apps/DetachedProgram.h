// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace zelk {

/// Starts a program, looked for on the PATH, that lives on its own: no child of this process, in a session of its own,
/// so that it ends with nobody and leaves nothing to be waited for. Its output is dropped. Comes back at once; a
/// failure is silent. `command` is the program and its arguments.
void startDetached(std::vector<std::string> command);

}  // namespace zelk
