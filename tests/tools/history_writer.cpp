// SPDX-License-Identifier: MIT
// Adds one record to the history below a home folder and ends: what the durability test runs under strace, to let each
// of its system calls fail in turn. `history_writer HOME TOTAL`
#include <unistd.h>

#include <cstdlib>

#include "platform/linux/files/LinuxFileManager.h"
#include "platform/linux/files/LinuxLocations.h"
#include "state/SurveyHistory.h"

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    zelk::LinuxFileManager files;
    zelk::LinuxLocations locations(argv[1]);
    zelk::SurveyRecord record;
    record.totalScanned = std::atoll(argv[2]);
    record.folders = zelk::SizeByPath{{argv[1], record.totalScanned}};
    // Where the test begins to count: what the loader and the sanitizers call before is none of its business.
    static_cast<void>(::access("/history-writer-begins", F_OK));
    zelk::SurveyHistory(files, locations).append(record);
    // At once: leak checkers do not run under a tracer.
    ::_exit(0);
}
