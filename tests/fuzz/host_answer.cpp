// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as the answer of a sandbox's host.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/Utf8.h"
#include "platform/linux/apps/HostAnswer.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto answer = zelk::parseHostAnswer(text);
    if (!answer) return 0;
    require(!answer->processes.empty() && !answer->entries.empty());

    const zelk::RunningApplications running = zelk::runningApplicationsOf(*answer, {"de_AT", "de"});
    require(running.names.size() <= running.ids.size() && running.ids.size() <= answer->entries.size());
    for (const std::string& name : running.names) require(!name.empty() && zelk::isUtf8(name));

    // Less than all of it is no answer, and more is none either.
    require(!zelk::parseHostAnswer(text.substr(0, text.size() - 1)));
    require(!zelk::parseHostAnswer(std::string(text) + "x"));
    return 0;
}
