// SPDX-License-Identifier: MIT
// history_writer HOME TOTAL: adds one record to the history below a home folder. The durability test runs it under
// strace and makes each of its system calls fail.
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
    // The test counts calls from here, excluding those of the loader and sanitizers.
    static_cast<void>(::access("/history-writer-begins", F_OK));
    zelk::SurveyHistory(files, locations).appendHistory(record);
    // Exit at once: leak checkers do not work under a tracer.
    ::_exit(0);
}
