// SPDX-License-Identifier: MIT
// The system's header plus macOS's additions, as far as the bulk directory reader needs them.
#pragma once
#pragma GCC system_header

#include_next <sys/resource.h>

constexpr int IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES = 3;
constexpr int IOPOL_SCOPE_THREAD = 1;
constexpr int IOPOL_MATERIALIZE_DATALESS_FILES_DEFAULT = 0;
constexpr int IOPOL_MATERIALIZE_DATALESS_FILES_OFF = 1;
constexpr int IOPOL_MATERIALIZE_DATALESS_FILES_ON = 2;

int getiopolicy_np(int type, int scope);
int setiopolicy_np(int type, int scope, int policy);
