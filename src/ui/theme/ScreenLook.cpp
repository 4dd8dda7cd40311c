// SPDX-License-Identifier: MIT
#include "ui/theme/ScreenLook.h"

#include <array>
#include <cstddef>

namespace zelk {

const ScreenLook& lookOf(Screen screen) {
    static const std::array<ScreenLook, allScreens.size()> looks{{
        {ScreenLook::tr("Overview"), ScreenLook::tr("everything at a glance"), "scope", {245, 166, 35}},
        {ScreenLook::tr("Reclaim"), ScreenLook::tr("caches, logs, junk"), "sparkles", {50, 199, 123}},
        {ScreenLook::tr("Privacy"), ScreenLook::tr("browsing traces"), "hand.raised", {62, 155, 255}},
        {ScreenLook::tr("Tune"), ScreenLook::tr("startup & memory"), "speedometer", {255, 107, 94}},
        {ScreenLook::tr("Apps"), ScreenLook::tr("uninstall cleanly"), "square.grid.2x2", {167, 123, 255}},
        {ScreenLook::tr("Clutter"), ScreenLook::tr("large & old files"), "tray.full", {34, 195, 201}},
        {ScreenLook::tr("Duplicates"), ScreenLook::tr("identical files"), "doc.on.doc", {21, 170, 191}},
        {ScreenLook::tr("Lens"), ScreenLook::tr("visual map"), "circle.hexagongrid", {232, 91, 196}},
        {ScreenLook::tr("Health"), ScreenLook::tr("vitals & tune-up"), "heart.text.square", {47, 211, 165}},
        {ScreenLook::tr("System"), ScreenLook::tr("snapshots & space"), "internaldrive", {124, 131, 255}},
        {ScreenLook::tr("Tools"), ScreenLook::tr("what's included"), "list.star", {154, 160, 255}},
        {ScreenLook::tr("Settings"), "", "gearshape", {152, 146, 168}},
    }};
    return looks[static_cast<std::size_t>(screen)];
}

}  // namespace zelk

#include "moc_ScreenLook.cpp"
