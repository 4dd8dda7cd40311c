// SPDX-License-Identifier: MIT
#include "platform/macos/DatalessFolders.h"

#include <sys/resource.h>

namespace zelk {

namespace {

constexpr int policy = IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES;

}  // namespace

DatalessFetchGuard::DatalessFetchGuard() : before_(getiopolicy_np(policy, IOPOL_SCOPE_THREAD)) {
    // If the system refuses, it downloads as before, which does not harm the survey.
    setiopolicy_np(policy, IOPOL_SCOPE_THREAD, IOPOL_MATERIALIZE_DATALESS_FILES_OFF);
}

DatalessFetchGuard::~DatalessFetchGuard() {
    setiopolicy_np(policy, IOPOL_SCOPE_THREAD, before_ < 0 ? IOPOL_MATERIALIZE_DATALESS_FILES_DEFAULT : before_);
}

}  // namespace zelk
