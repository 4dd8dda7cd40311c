// SPDX-License-Identifier: MIT
// Formats arbitrary counts and parses them with an oracle that shares only the rule with the formatter.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

#include "platform/ByteFormat.h"

namespace {

__extension__ typedef __int128 Wide;  // an extension of both compilers

[[noreturn]] void fail(std::int64_t count, const std::string& text, const char* why) {
    std::fprintf(stderr, "%lld -> \"%s\": %s\n", static_cast<long long>(count), text.c_str(), why);
    std::abort();
}

struct Reading {
    Wide hundredths = 0;  ///< of a byte, so that two decimals of any unit are whole
    Wide stepHundredths = 0;
    int unit = 0;
};

Reading parse(std::int64_t count, const std::string& text, char separator) {
    constexpr std::array<std::string_view, 7> names{"bytes", "KB", "MB", "GB", "TB", "PB", "EB"};
    const std::size_t blank = text.find(' ');
    if (blank == std::string::npos || text.find(' ', blank + 1) != std::string::npos)
        fail(count, text, "not one blank");
    const std::string_view number = std::string_view(text).substr(0, blank);
    const std::string_view unitName = std::string_view(text).substr(blank + 1);

    Reading reading;
    const auto* const named = std::find(names.begin(), names.end(), unitName == "byte" ? "bytes" : unitName);
    if (named == names.end()) fail(count, text, "unknown unit");
    if ((unitName == "byte") != (number == "1" && named == names.begin())) fail(count, text, "singular");
    reading.unit = static_cast<int>(named - names.begin());

    const std::size_t dot = number.find(separator);
    const std::string_view whole = number.substr(0, dot);
    const std::string_view part = dot == std::string_view::npos ? std::string_view{} : number.substr(dot + 1);
    const std::size_t decimals = reading.unit < 2 ? 0 : reading.unit == 2 ? 1 : 2;
    if (whole.empty() || whole.size() > 3) fail(count, text, "one to three digits stand before the separator");
    if (whole.size() > 1 && whole[0] == '0') fail(count, text, "leading zero");
    if (dot != std::string_view::npos && part.empty()) fail(count, text, "separator without decimals");
    if (part.size() > decimals) fail(count, text, "too many decimals");
    if (!part.empty() && part.back() == '0') fail(count, text, "trailing zero");
    if (reading.unit > 0 && whole == "0") fail(count, text, "less than one unit");

    Wide scale = 100;
    for (int i = 0; i < reading.unit; ++i) scale *= 1000;
    reading.stepHundredths = scale;
    for (std::size_t i = 0; i < decimals; ++i) reading.stepHundredths /= 10;
    for (const char digit : whole) {
        if (digit < '0' || digit > '9') fail(count, text, "not a digit");
        reading.hundredths = reading.hundredths * 10 + (digit - '0') * scale;
    }
    for (const char digit : part) {
        if (digit < '0' || digit > '9') fail(count, text, "not a digit");
        scale /= 10;
        reading.hundredths += (digit - '0') * scale;
    }
    return reading;
}

Reading check(std::int64_t count, char separator) {
    const std::string text = zelk::byteText(count, std::string_view(&separator, 1));
    if (text.size() > 9) fail(count, text, "longer than \"999.99 GB\"");
    const Reading reading = parse(count, text, separator);
    const Wide exact = static_cast<Wide>(std::max<std::int64_t>(count, 0)) * 100;
    const Wide off = reading.hundredths > exact ? reading.hundredths - exact : exact - reading.hundredths;
    if (reading.unit == 0 ? off != 0 : 2 * off > reading.stepHundredths) fail(count, text, "not the nearest figure");
    if (reading.unit > 0 && exact - reading.hundredths == reading.stepHundredths / 2 && off != 0)
        fail(count, text, "a half went down");
    return reading;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < sizeof(std::int64_t) + 1) return 0;
    std::int64_t count = 0;
    std::memcpy(&count, data, sizeof count);
    const char separator = data[sizeof count] % 2 == 0 ? '.' : ',';
    // Reduce half of the inputs, so that small units occur as often as exabytes.
    if (data[sizeof count] & 2) count = static_cast<std::int64_t>(static_cast<std::uint64_t>(count) >> (count & 63));

    const Reading here = check(count, separator);
    if (count < std::numeric_limits<std::int64_t>::max() && check(count + 1, separator).hundredths < here.hundredths)
        fail(count, zelk::byteText(count), "one more byte shows less");
    return 0;
}
