// SPDX-License-Identifier: MIT
// Surveys the given folders and prints the counts. tools/macos_check links it with the system library only, which shows
// that the scan core is complete on macOS and needs nothing else.
#include <cstdio>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/macos/BulkDirectoryReader.h"
#include "platform/macos/KernelFigures.h"
#include "platform/posix/PosixClock.h"
#include "scan/ScanEngine.h"

int main(int argc, char** argv) {
    zelk::BulkDirectoryService directories;
    zelk::PosixClock clock;
    const auto queue = std::make_shared<zelk::UpdateQueue>();
    zelk::ScanEngine(directories, clock).runHere(queue, std::vector<std::string>(argv + 1, argv + argc));
    for (const zelk::ScanUpdate& update : queue->takeAll().updates) {
        if (const auto* finished = std::get_if<zelk::update::Finished>(&update)) {
            std::printf("%lld files, %lld folders, %lld bytes\n", static_cast<long long>(finished->stats.filesScanned),
                        static_cast<long long>(finished->stats.dirsScanned),
                        static_cast<long long>(finished->stats.totalBytes));
        }
    }
    std::printf("on %s\n", zelk::sysctlText("hw.model").value_or("a machine without a name").c_str());
}
