# SPDX-License-Identifier: MIT
# Output and error functions shared by the commands of this repository. Source it from the root folder.

# Announces a step, so that the user sees what is happening.
say() { printf '\n==> %s\n' "$*"; }

# A remark under a step.
note() { printf '    %s\n' "$*"; }

# Exits with an error message that says what to do.
fail() {
    printf '\nerror: %s\n' "$*" >&2
    exit 1
}

have() { command -v "$1" >/dev/null 2>&1; }

on_mac() { [ "$(uname -s)" = Darwin ]; }
