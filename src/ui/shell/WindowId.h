// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// The secondary windows, one of each.
enum class WindowId { about, help, settings };

}  // namespace zelk
