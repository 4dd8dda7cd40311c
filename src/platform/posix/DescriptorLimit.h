// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// Lets the process hold as many open descriptors as it may, within reason: the usual soft limits (256 on macOS) are
/// fewer than the readers of a scan on a large machine keep open.
void raiseDescriptorLimit();

}  // namespace zelk
