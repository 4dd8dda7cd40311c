// SPDX-License-Identifier: MIT
#include "ui/theme/ScreenLook.h"

#include <array>
#include <cstddef>

namespace zelk {

const ScreenLook& lookOf(Screen screen) {
    static const std::array<ScreenLook, allScreens.size()> looks{{
        {"Overview", "everything at a glance", "scope", {245, 166, 35}},
        {"Reclaim", "caches, logs, junk", "sparkles", {50, 199, 123}},
        {"Privacy", "browsing traces", "hand.raised", {62, 155, 255}},
        {"Tune", "startup & memory", "speedometer", {255, 107, 94}},
        {"Apps", "uninstall cleanly", "square.grid.2x2", {167, 123, 255}},
        {"Clutter", "large & old files", "tray.full", {34, 195, 201}},
        {"Duplicates", "identical files", "doc.on.doc", {21, 170, 191}},
        {"Lens", "visual map", "circle.hexagongrid", {232, 91, 196}},
        {"Health", "vitals & tune-up", "heart.text.square", {47, 211, 165}},
        {"System", "snapshots & space", "internaldrive", {124, 131, 255}},
        {"Tools", "what's included", "list.star", {154, 160, 255}},
        {"Settings", "", "gearshape", {152, 146, 168}},
    }};
    return looks[static_cast<std::size_t>(screen)];
}

}  // namespace zelk
