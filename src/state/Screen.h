// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace zelk {

/// The modules, in the order of the "Go" menu.
enum class Screen {
    survey,
    reclaim,
    privacy,
    tune,
    apps,
    clutter,
    duplicates,
    lens,
    health,
    system,
    tools,
    settings,
};

inline constexpr std::array allScreens{Screen::survey, Screen::reclaim, Screen::privacy,    Screen::tune,
                                       Screen::apps,   Screen::clutter, Screen::duplicates, Screen::lens,
                                       Screen::health, Screen::system,  Screen::tools,      Screen::settings};

}  // namespace zelk
