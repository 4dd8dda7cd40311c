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
    openFolder(json, root, name);
    const FSNode* folder = &root;
    while (true) {
        const FSNode* next = folder->firstChild();
        while (next == nullptr) {
            json.close(']');
            if (folder == &root) return;
            next = folder->nextSibling();
            if (next == nullptr) folder = folder->parent();
        }
        folder = next;
        openFolder(json, *folder, folder->name());
    }
}

/// The innermost folder that all of these paths lie in, but none of them is, where there is one.
std::string folderAround(const FSNode::Children& roots) {
    std::string around(roots.front().name());
    for (bool holdsAll = false; !holdsAll && around != "/";) {
        around.resize(std::max<std::size_t>(around.rfind('/'), 1));
        holdsAll = true;
        for (const FSNode& root : roots)
            holdsAll = holdsAll && root.name() != around && isInFolder(root.name(), around);
    }
    return around;
}

}  // namespace

void writeNcduExport(Output& output, const Survey& survey, std::string_view version) {
    const FSNode::Children roots = survey.tree->children();
    JsonWriter json(output);
    json.open('[').number(majorVersion).number(minorVersion).open('{').key("progname").text("zelk-survey");
    json.key("progver").text(version).key("timestamp").number(static_cast<std::int64_t>(std::floor(survey.date)));
    json.close('}');
    if (const FSNode* const only = survey.tree->onlyChild()) {
        writeFolder(json, *only, only->name());
    } else {
        const std::string around = folderAround(roots);
        json.open('[').open('{').key("name").text(around).close('}');
        for (const FSNode& root : roots) {
            std::string_view below = root.name().substr(around.size());
            while (below.starts_with('/')) below.remove_prefix(1);
            writeFolder(json, root, below.empty() ? "/" : below);
        }
        json.close(']');
    }
    json.close(']');
    output.write("\n");
}

}  // namespace zelk::cli
