// SPDX-License-Identifier: MIT
// Finds faults in the layout and accessibility of whatever screen a window shows.
#pragma once

#include <QQuickWindow>
#include <string>
#include <vector>

namespace zelk {

/// Texts that are truncated although they contain no long name, that overflow their control or a clipping ancestor, or
/// that overlap another text or a control that they do not belong to. One line per fault.
std::vector<std::string> layoutFaults(QQuickWindow& window);

/// Controls and tab stops without a name, a role or a size. One line per fault.
std::vector<std::string> accessibilityFaults(QQuickWindow& window);

/// Focus rings that are clipped. One line per fault.
std::vector<std::string> ringFaults(QQuickWindow& window);

/// The accessible names of all tab stops, in no particular order.
std::vector<std::string> focusableNames(QQuickWindow& window);

}  // namespace zelk
