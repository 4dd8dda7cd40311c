// SPDX-License-Identifier: MIT
#pragma once

// Before the names below, which its own would shadow.
#include "platform/SystemKind.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

/// Makes objects that are created during its lifetime use the texts of this system.
class TextsOf {
public:
    explicit TextsOf(SystemTexts::System system) { SystemTexts::show(system); }
    ~TextsOf() { SystemTexts::show(before_); }
    TextsOf(const TextsOf&) = delete;
    TextsOf& operator=(const TextsOf&) = delete;

private:
    SystemTexts::System before_ = SystemTexts::shown();
};

inline constexpr SystemTexts::System macOS = SystemTexts::System::macOS;
inline constexpr SystemTexts::System desktopLinux = SystemTexts::System::desktopLinux;

}  // namespace zelk
