// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Time.h"
#include "scan/ScanUpdate.h"

namespace zelk::cli {

/// How far a survey has come, on one line of a terminal that is written over and erased at the end. One thread.
class ProgressLine {
public:
    static constexpr double secondsBetween = 0.1;

    /// `print` writes to the terminal; `columns` tells how wide that is now.
    ProgressLine(Clock& clock, std::function<void(std::string_view)> print, std::function<std::size_t()> columns);
    /// Erases the line.
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Shows it unless something was shown a moment ago.
    void show(const update::Progress& progress);

    /// The line, which leaves the last column free: a terminal may break the line behind it.
    static std::string text(const update::Progress& progress, std::size_t columns);

private:
    Clock& clock_;
    std::function<void(std::string_view)> print_;
    std::function<std::size_t()> columns_;
    bool isShown_ = false;
    double shownAt_ = 0;
};

}  // namespace zelk::cli
