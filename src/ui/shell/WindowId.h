// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// The windows beside the main one. There is one of each.
enum class WindowId { about, help, settings };

}  // namespace zelk
