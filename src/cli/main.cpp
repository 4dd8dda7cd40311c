// SPDX-License-Identifier: MIT
// zelk-survey: a survey for the terminal. The same engine and the same catalogue as in the application, told as a
// table, as JSON or for ncdu. It removes nothing and remembers nothing.
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "cli/Arguments.h"
#include "cli/EndRequest.h"
#include "cli/Program.h"
#include "platform/NativeStorage.h"

namespace {

// How long the threads of a survey may take to let go of the disk before the process ends without them.
constexpr double drainSeconds = 1.0;

}  // namespace

int main(int argc, char** argv) {
    zelk::cli::prepareProcess();
    const zelk::cli::Arguments arguments =
        zelk::cli::parseArguments({argv + std::min(argc, 1), argv + argc});  // there may not even be a name
    if (!arguments.refusal.empty() || arguments.action != zelk::cli::Arguments::Action::survey)
        return zelk::cli::answer(arguments);

    zelk::cli::EndRequest end;
    zelk::NativeStorage native;
    const int status = zelk::cli::survey(native.storage(), arguments, end);
    // A thread that hangs on a dead network volume still holds the services: leave them to it.
    if (!native.drain(drainSeconds)) std::_Exit(status);
    return status;
}
