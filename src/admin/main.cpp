// SPDX-License-Identifier: MIT
// zelk-admin: what Zelk asks of root on Linux, and nothing else. pkexec starts it after it has asked an administrator,
// in the words of packaging/polkit for each verb; it is installed as /usr/libexec/zelk-admin.
//
//   zelk-admin free-memory
//   zelk-admin delete-snapshot CONFIG NUMBER
//   zelk-admin thin-snapshots CONFIG
//   zelk-admin remove-package NAME
//
// It reads no environment, no configuration and no input, and starts no shell. Its own exit statuses are 64 for
// arguments that it refuses and 77 where it is not root (sysexits.h); any other comes from what it did.
#include <sysexits.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "admin/AdminCommand.h"
#include "admin/AdminProcess.h"

int main(int argc, char** argv) {
    zelk::leaveInheritanceBehind();
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);  // there may not even be a name
    const zelk::AdminCommand command = zelk::adminCommand(arguments);
    if (!command.refusal.empty()) {
        zelk::complain(command.refusal);
        return EX_USAGE;
    }
    if (::geteuid() != 0) {
        zelk::complain("zelk-admin does this as root only.");
        return EX_NOPERM;
    }
    if (command.dropsCaches) return zelk::dropCaches("/proc/sys/vm/drop_caches");
    return zelk::runInTurn(command.programs);
}
