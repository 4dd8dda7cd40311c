// SPDX-License-Identifier: MIT
#include "system/BackgroundItems.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <set>
#include <string_view>
#include <utility>

#include "platform/DesktopEntry.h"
#include "platform/FolderPath.h"
#include "platform/ItemPath.h"
#include "platform/PropertyList.h"
#include "platform/PropertyListLimits.h"
#include "system/UnitFile.h"

namespace zelk {

namespace {

// Those of desktops and distributions have a few kilobytes. What is larger is no item, as BackgroundItems.h says.
constexpr std::size_t largestText = std::size_t{1} << 20;

std::string_view endingOf(std::string_view name, BackgroundItemKind kind) {
    const auto oneOf = [name](std::initializer_list<std::string_view> endings) -> std::string_view {
        for (const std::string_view ending : endings)
            if (name.ends_with(ending)) return ending;
        return {};
    };
    switch (kind) {
        case BackgroundItemKind::launchdPropertyLists:
            return oneOf({".plist"});
        case BackgroundItemKind::autostartEntries:
            return oneOf({".desktop"});
        case BackgroundItemKind::userUnits:
        case BackgroundItemKind::systemUnits:
            return oneOf({".service", ".timer", ".socket", ".path"});
    }
    return {};
}

/// Of an instance of a unit ("name@instance.service") the name of its template ("name@.service"), which the system
/// starts the instance from if it has no file of its own; empty for everything else.
std::string templateOf(std::string_view name, const BackgroundItemFolder& folder) {
    const std::size_t at = name.find('@');
    if (folder.kind != BackgroundItemKind::userUnits || at == std::string_view::npos) return {};
    return std::string(name.substr(0, at + 1)) + std::string(endingOf(name, folder.kind));
}

/// The deepest link on the way from `home` down to `folder`, which may be one itself. Empty if there is none, or if the
/// folder is elsewhere.
std::string linkBelow(FileManager& files, const std::string& home, const std::string& folder) {
    if (!isInFolder(folder, home)) return {};
    for (std::string at = folder; at.size() > home.size(); at.resize(at.rfind('/'))) {
        const std::optional<FileProperties> properties = files.properties(at);
        if (properties && properties->isLink) return at;
    }
    return {};
}

class ItemReader {
public:
    ItemReader(FileManager& files, Locations& locations)
        : files_(files),
          locations_(locations),
          home_(locations.home()),
          programs_(locations.programFolders()),
          locales_(locations.entryLocales()) {}

    void readFolder(const BackgroundItemFolder& folder) {
        std::optional<std::vector<std::string>> names = files_.list(folder.path);
        if (!names) return;
        std::sort(names->begin(), names->end());
        const std::string link = folder.removable ? linkBelow(files_, home_, folder.path) : std::string();
        for (const std::string& name : *names) {
            std::optional<Agent> agent = read(folder, name);
            if (!agent) continue;
            agent->link = link;
            agents_.push_back(std::move(*agent));
        }
    }

    /// The item of this name, if there is one and none that was read before hides it.
    std::optional<Agent> read(const BackgroundItemFolder& folder, const std::string& name) {
        const std::string_view ending = endingOf(name, folder.kind);
        if (ending.empty()) return std::nullopt;
        Agent agent;
        agent.path = pathIn(folder.path, name);
        agent.label = name.substr(0, name.size() - ending.size());
        agent.removable = folder.removable;
        if (folder.kind == BackgroundItemKind::launchdPropertyLists)
            readPropertyList(agent);
        else if (!isFile(folder, agent.path) || isHidden(folder, name) || !readText(folder, agent))
            return std::nullopt;
        agent.replaces = folder.removable && hidesAnother(folder, name);
        agent.mayReplace = folder.hidesUnseen && !agent.replaces;
        if (agent.replaces || agent.mayReplace) agent.removable = false;
        return agent;
    }

    std::vector<Agent> take() { return std::move(agents_); }

private:
    void readPropertyList(Agent& agent) {
        const auto list = PropertyList::parse(files_.readSmall(agent.path, largestPropertyList).value_or(""));
        if (!list) return;
        if (auto label = list->text("Label")) agent.label = std::move(*label);
        if (const auto program = list->text("Program")) {
            agent.program = existing(*program);
        } else if (const auto arguments = list->texts("ProgramArguments"); arguments && !arguments->empty()) {
            agent.program = existing(arguments->front());
        }
    }

    bool isFile(const BackgroundItemFolder& folder, const std::string& path) {
        const std::optional<FileProperties> properties = files_.properties(path);
        if (!properties || properties->isDirectory) return false;
        return folder.kind != BackgroundItemKind::systemUnits || !properties->isLink;
    }

    /// Whether a folder before had a file of this name and kind, which is what counts.
    bool isHidden(const BackgroundItemFolder& folder, const std::string& name) {
        return !seen_.emplace(folder.kind, name).second;
    }

    bool hidesAnother(const BackgroundItemFolder& folder, const std::string& name) {
        const std::string form = templateOf(name, folder);
        return std::any_of(folder.hides.begin(), folder.hides.end(), [&](const std::string& other) {
            return isThere(pathIn(other, name)) || (!form.empty() && isThere(pathIn(other, form)));
        });
    }

    /// A link of the host with an absolute path leads elsewhere from a sandbox, or nowhere.
    bool isThere(const std::string& path) {
        return files_.exists(path) || (locations_.isSandboxed() && files_.properties(path));
    }

    /// Reads an entry or a unit. False for what is not started.
    bool readText(const BackgroundItemFolder& folder, Agent& agent) {
        const std::optional<std::string> text = files_.readSmall(agent.path, largestText);
        // What can be opened and not be read is taken for no text: a device, such as the /dev/null to which a mask is a
        // link, but also a file that is too large.
        if (!text) return files_.tryOpen(agent.path) != 0;
        return folder.kind == BackgroundItemKind::autostartEntries ? readEntry(*text, agent) : readUnit(*text, agent);
    }

    bool readEntry(const std::string& text, Agent& agent) {
        std::optional<DesktopEntry> entry = parseDesktopEntry(text, locales_);
        if (!entry) return true;
        if (entry->hidden || entry->staysOff) return false;
        if (!entry->name.empty()) agent.label = std::move(entry->name);
        if (!entry->command.empty()) agent.program = existing(entry->command.front());
        return true;
    }

    bool readUnit(const std::string& text, Agent& agent) {
        if (text.empty()) return false;  // another form of a mask
        UnitFile unit = parseUnitFile(text);
        if (!unit.description.empty()) agent.label = std::move(unit.description);
        // Of the specifiers the one that stands at the beginning of a program.
        if (unit.program.starts_with("%h/")) unit.program.replace(0, 2, home_ == "/" ? "" : home_);
        agent.program = existing(unit.program);
        return true;
    }

    /// The path of a program, if that file exists.
    std::optional<std::string> existing(const std::string& program) {
        if (program.starts_with('/'))
            return files_.exists(locations_.pathInSandbox(program)) ? std::optional(program) : std::nullopt;
        if (program.empty() || program.find('/') != std::string::npos) return std::nullopt;
        for (const std::string& folder : programs_)
            if (std::string path = pathIn(folder, program); files_.exists(path)) return path;
        return std::nullopt;
    }

    FileManager& files_;
    Locations& locations_;
    std::string home_;
    std::vector<std::string> programs_;
    std::vector<std::string> locales_;
    std::set<std::pair<BackgroundItemKind, std::string>> seen_;
    std::vector<Agent> agents_;
};

}  // namespace

std::vector<Agent> backgroundItems(FileManager& files, Locations& locations) {
    ItemReader reader(files, locations);
    for (const BackgroundItemFolder& folder : locations.backgroundItemFolders()) reader.readFolder(folder);
    return reader.take();
}

bool isRemovableNow(FileManager& files, Locations& locations, const Agent& agent) {
    const std::optional<ItemPath> item = ItemPath::from(agent.path);
    if (!item || !files.properties(agent.path)) return false;
    const std::vector<BackgroundItemFolder> folders = locations.backgroundItemFolders();
    const auto folder = std::find_if(folders.begin(), folders.end(), [&](const BackgroundItemFolder& one) {
        return one.removable && one.path == item->parent();
    });
    if (folder == folders.end() || linkBelow(files, locations.home(), folder->path) != agent.link) return false;
    // The user's own folders are the first of their kind: none before hides the item.
    const std::optional<Agent> now = ItemReader(files, locations).read(*folder, std::string(item->name()));
    return now && now->removable;
}

}  // namespace zelk
