// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as a unit file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/Utf8.h"
#include "system/UnitFile.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const zelk::UnitFile unit = zelk::parseUnitFile(text);
    require(zelk::isUtf8(unit.description));
    require(unit.description.size() <= text.size() && unit.program.size() <= text.size());
    require(unit.program.empty() || std::string_view("@-:+!|").find(unit.program.front()) == std::string_view::npos);

    // Nothing before it changes what a section says.
    const zelk::UnitFile more =
        zelk::parseUnitFile("[Unit]\nDescription=Before\n[Service]\nExecStart=/before\n[X]\n" + std::string(text) +
                            "\n\n[Service]\nExecStart=\nExecStart=/after\n[Unit]\nDescription=After\n");
    require(more.description == "After" && more.program == "/after");
    return 0;
}
