// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// Which system's tools and folders are used. A value rather than a preprocessor condition, so that what is portable is
/// tested for both systems on either.
enum class SystemKind { macOS, desktopLinux };

}  // namespace zelk
