// SPDX-License-Identifier: MIT
// Background items in memory.
#pragma once

#include <string>

#include "fakes/FakePlatform.h"

namespace zelk::fakes {

/// A property list of a background item.
inline std::string agentList(const std::string& label, const std::string& program = {}) {
    std::string content = "<key>Label</key><string>" + label + "</string>";
    if (!program.empty()) content += "<key>Program</key><string>" + program + "</string>";
    return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + content + "</dict></plist>";
}

inline const std::string ownAgents = "/home/me/Library/LaunchAgents";
inline const std::string systemAgents = "/Library/LaunchAgents";

/// By label "Backup" (own, with the program "/opt/backup"), "cloud" (own), "Daemon" (of the system), "Sync" (own).
inline void fillWithAgents(FakePlatform& machine) {
    machine.locations.itemFolders = {{ownAgents, BackgroundItemKind::launchdPropertyLists, true},
                                     {systemAgents, BackgroundItemKind::launchdPropertyLists, false}};
    machine.files.addFile("/opt/backup");
    machine.files.addFile(ownAgents + "/s.plist", agentList("Sync"));
    machine.files.addFile(ownAgents + "/b.plist", agentList("Backup", "/opt/backup"));
    machine.files.addFile(ownAgents + "/c.plist", agentList("cloud"));
    machine.files.addFile(systemAgents + "/d.plist", agentList("Daemon"));
}

}  // namespace zelk::fakes
