# SPDX-License-Identifier: MIT
# What the commands of this repository share: how they speak and how they give up. Sourced, from the root folder.

# One line per step, so that a person sees what happens and what it waits for.
say() { printf '\n==> %s\n' "$*"; }

# A remark under a step.
note() { printf '    %s\n' "$*"; }

# Ends the command with a sentence that says what to do.
fail() {
    printf '\nerror: %s\n' "$*" >&2
    exit 1
}

have() { command -v "$1" >/dev/null 2>&1; }

on_mac() { [ "$(uname -s)" = Darwin ]; }
