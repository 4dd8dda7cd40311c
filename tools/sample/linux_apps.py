# SPDX-License-Identifier: MIT
"""Applications of a Linux desktop that lie in the home: with and without leftovers, and two of one name."""

# What an AppImage of the second type begins with.
APP_IMAGE = "\x7fELF\x02\x01\x01\x00AI\x02"

# Identifier, name, megabytes of the application, and of what it keeps.
FLATPAKS = (("org.sample.Orrery", "Orrery", 96, 56), ("org.sample.Globe", "Globe", 41, 0),
            ("org.other.Sonata", "Sonata", 22, 0))


def entry(plan, identifier, name, command, more=""):
    plan.text(f".local/share/applications/{identifier}.desktop",
              f"[Desktop Entry]\nType=Application\nName={name}\nExec={command}\nIcon={identifier}\n{more}", 300)


def flatpaks(plan):
    for identifier, name, megabytes, kept in FLATPAKS:
        folder = ".local/share/flatpak"
        branch = f"{folder}/app/{identifier}/x86_64/stable"
        commit = format(sum(identifier.encode()) * 7919, "064x")
        plan.many(f"{branch}/{commit}/files/lib", 6, megabytes, lambda n: f"lib{n}.so", (30, 200))
        plan.symbolic_link(f"{branch}/active", commit)
        plan.symbolic_link(f"{folder}/app/{identifier}/current", "x86_64/stable")
        plan.text(f"{folder}/exports/share/applications/{identifier}.desktop",
                  f"[Desktop Entry]\nType=Application\nName={name}\nExec=/usr/bin/flatpak run {identifier}\n"
                  f"Icon={identifier}\nX-Flatpak={identifier}\n", 200)
        if kept:
            plan.many(f".var/app/{identifier}/data", 6, kept * 0.6, lambda n: f"sky-{n}.map", (20, 300))
            plan.many(f".var/app/{identifier}/cache", 6, kept * 0.4, lambda n: f"tile-{n}", (2, 80))


def fill(plan):
    flatpaks(plan)
    # With an entry in the menus, and as it was downloaded.
    plan.file("Applications/Inkwell-4.2.AppImage", 88, 33)
    plan.begin("Applications/Inkwell-4.2.AppImage", APP_IMAGE)
    entry(plan, "inkwell-appimage", "Inkwell", f"{plan.root}/Applications/Inkwell-4.2.AppImage %U",
          "X-AppImage-Name=org.sample.InkwellImage\n")
    plan.many(".config/org.sample.InkwellImage", 3, 4, lambda n: f"settings-{n}.db", (3, 60))
    plan.begin("Downloads/sonata-2.1.AppImage", APP_IMAGE)
    # Unpacked, with leftovers by the name of its program.
    plan.file("Tidepool/bin/tidepool", 30, 120)
    plan.many("Tidepool/share", 8, 74, lambda n: f"texture-{n}.pak", (120, 130))
    entry(plan, "org.sample.Tidepool", "Tidepool", f"{plan.root}/Tidepool/bin/tidepool %f")
    plan.text(".config/autostart/org.sample.Tidepool.desktop",
              f"[Desktop Entry]\nType=Application\nName=Tidepool\nExec={plan.root}/Tidepool/bin/tidepool --hidden\n", 90)
