// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace zelk {

/// Asks the person for one folder, modally, and gives its path as the system has it; absent if none was chosen. Main
/// thread, with a QApplication.
std::optional<std::string> pickFolder();

}  // namespace zelk
