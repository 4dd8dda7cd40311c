// SPDX-License-Identifier: MIT
// Parses arbitrary bytes as a property list, with and without the start of the binary form.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/PropertyList.h"
#include "platform/PropertyListLimits.h"
#include "platform/Utf8.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void parse(std::string_view bytes) {
    const auto list = zelk::PropertyList::parse(bytes);
    require(!list || zelk::isModestPropertyList(bytes));
    if (!list) return;
    for (const char* key : {"Label", "Program", "ProgramArguments", "List", ""}) {
        const auto text = list->text(key);
        const auto texts = list->texts(key);
        require(!text || !texts);
        require(!text || zelk::isUtf8(*text));
        require(text == list->text(key));
        if (texts)
            for (const std::string& one : *texts) require(zelk::isUtf8(one));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    parse(input);
    parse("bplist00" + std::string(input));
    return 0;
}
