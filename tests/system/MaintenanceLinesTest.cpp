// SPDX-License-Identifier: MIT
#include "system/MaintenanceLines.h"

#include <gtest/gtest.h>

namespace zelk {
namespace {

TEST(MaintenanceLines, areThoseOfEachSystem) {
    EXPECT_EQ(freeMemoryLine(SystemKind::macOS), "/usr/sbin/purge");
    EXPECT_EQ(flushDNSLine(SystemKind::macOS), "/usr/bin/dscacheutil -flushcache; /usr/bin/killall -HUP mDNSResponder");
    EXPECT_EQ(freeMemoryLine(SystemKind::desktopLinux), "sync; echo 3 > /proc/sys/vm/drop_caches");
    EXPECT_EQ(flushDNSLine(SystemKind::desktopLinux), "/usr/bin/resolvectl flush-caches");
}

}  // namespace
}  // namespace zelk
