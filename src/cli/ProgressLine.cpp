// SPDX-License-Identifier: MIT
#include "cli/ProgressLine.h"

#include <utility>

#include "cli/Figures.h"
#include "cli/VisibleText.h"
#include "platform/ByteFormat.h"

namespace zelk::cli {

namespace {

constexpr std::string_view erase = "\r\x1B[K";

}  // namespace

ProgressLine::ProgressLine(Clock& clock, std::function<void(std::string_view)> print,
                           std::function<std::size_t()> columns)
    : clock_(clock), print_(std::move(print)), columns_(std::move(columns)) {}

ProgressLine::~ProgressLine() {
    if (isShown_) print_(erase);
}

void ProgressLine::show(const update::Progress& progress) {
    const double now = clock_.monotonic();
    if (isShown_ && now - shownAt_ < secondsBetween) return;
    isShown_ = true;
    shownAt_ = now;
    print_(std::string(erase) + text(progress, columns_()));
}

std::string ProgressLine::text(const update::Progress& progress, std::size_t columns) {
    const std::size_t room = columns - (columns > 0 ? 1 : 0);
    const std::string figures = counted(progress.scanned, "item") + ", " + byteText(progress.bytes);
    if (figures.size() > room) return {};
    if (figures.size() + 2 >= room) return figures;
    return figures + "  " + endWithin(visibleText(progress.currentPath), room - figures.size() - 2);
}

}  // namespace zelk::cli
