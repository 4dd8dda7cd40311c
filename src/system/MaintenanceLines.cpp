// SPDX-License-Identifier: MIT
#include "system/MaintenanceLines.h"

namespace zelk {

std::string freeMemoryLine(SystemKind system) {
    if (system == SystemKind::macOS) return "/usr/sbin/purge";
    return "sync; echo 3 > /proc/sys/vm/drop_caches";
}

std::string flushDNSLine(SystemKind system) {
    if (system == SystemKind::macOS) return "/usr/bin/dscacheutil -flushcache; /usr/bin/killall -HUP mDNSResponder";
    return "/usr/bin/resolvectl flush-caches";
}

}  // namespace zelk
