// SPDX-License-Identifier: MIT
#include "cli/NcduExport.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "cli/Figures.h"
#include "cli/JsonWriter.h"
#include "platform/FolderPath.h"

namespace zelk::cli {

namespace {

constexpr std::int64_t majorVersion = 1;
constexpr std::int64_t minorVersion = 2;

/// Opens the array of a folder and writes its own object and the entry for its files.
void openFolder(JsonWriter& json, const FSNode& folder, std::string_view name) {
    json.open('[').open('{').key("name").text(name);
    if (folder.isUnreadable()) json.key("read_error").boolean(true);
    json.close('}');
    if (folder.fileCount == 0) return;
    json.open('{').key("name").text(looseFiles(folder.fileCount));
    json.key("dsize").number(folder.ownFileBytes).close('}');
}

void writeFolder(JsonWriter& json, const FSNode& root, std::string_view name) {
    struct Level {
        const FSNode* folder;
        std::size_t nextChild;
    };
    openFolder(json, root, name);
    std::vector<Level> levels{{&root, 0}};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.nextChild == level.folder->children.size()) {
            json.close(']');
            levels.pop_back();
            continue;
        }
        const FSNode& child = *level.folder->children[level.nextChild++];
        openFolder(json, child, child.name());
        levels.push_back({&child, 0});
    }
}

/// The innermost folder that all of these paths lie in, but none of them is, where there is one.
std::string folderAround(const std::vector<NodeRef>& roots) {
    std::string around(roots.front()->name());
    for (bool holdsAll = false; !holdsAll && around != "/";) {
        around.resize(std::max<std::size_t>(around.rfind('/'), 1));
        holdsAll = true;
        for (const NodeRef& root : roots)
            holdsAll = holdsAll && root->name() != around && isInFolder(root->name(), around);
    }
    return around;
}

}  // namespace

void writeNcduExport(Output& output, const Survey& survey, std::string_view version) {
    const std::vector<NodeRef>& roots = survey.tree->children;
    JsonWriter json(output);
    json.open('[').number(majorVersion).number(minorVersion).open('{').key("progname").text("zelk-survey");
    json.key("progver").text(version).key("timestamp").number(static_cast<std::int64_t>(std::floor(survey.date)));
    json.close('}');
    if (roots.size() == 1) {
        writeFolder(json, *roots.front(), roots.front()->name());
    } else {
        const std::string around = folderAround(roots);
        json.open('[').open('{').key("name").text(around).close('}');
        for (const NodeRef& root : roots) {
            std::string_view below = root->name().substr(around.size());
            while (below.starts_with('/')) below.remove_prefix(1);
            writeFolder(json, *root, below.empty() ? "/" : below);
        }
        json.close(']');
    }
    json.close(']');
    output.write("\n");
}

}  // namespace zelk::cli
