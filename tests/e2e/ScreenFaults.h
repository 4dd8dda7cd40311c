// SPDX-License-Identifier: MIT
// What is wrong with a screen and can be seen without eyes: looked for in the scene of a real window, whatever screen
// it shows.
#pragma once

#include <QQuickWindow>
#include <string>
#include <vector>

namespace zelk {

/// Texts that are cut short though no long name is in them, that stick out of the control that they stand on or out of
/// what clips them, and texts that lie on each other or on a control that is not theirs. One line per fault.
std::vector<std::string> layoutFaults(QQuickWindow& window);

/// Controls that can be pressed or that the keyboard can come to and that have no name, no role or no size. One line
/// per fault.
std::vector<std::string> accessibilityFaults(QQuickWindow& window);

/// Rings of the keyboard that something cuts off. One line per fault.
std::vector<std::string> ringFaults(QQuickWindow& window);

/// The names of the controls that the Tab key comes to, in no order.
std::vector<std::string> focusableNames(QQuickWindow& window);

}  // namespace zelk
