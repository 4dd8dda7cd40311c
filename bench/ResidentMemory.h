// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <limits>
#include <string>

/// The resident set of this process in MiB; not a number if the kernel does not say.
inline double residentMebibytes() {
    std::ifstream rollup("/proc/self/smaps_rollup");
    for (std::string word; rollup >> word;) {
        double kibibytes = 0;
        if (word == "Rss:" && rollup >> kibibytes) return kibibytes / 1024;
    }
    return std::numeric_limits<double>::quiet_NaN();
}
