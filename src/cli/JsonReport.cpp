// SPDX-License-Identifier: MIT
#include "cli/JsonReport.h"

#include <algorithm>
#include <vector>

#include "cli/JsonWriter.h"
#include "reclaim/ReclaimTotals.h"

namespace zelk::cli {

namespace {

void writeFolder(JsonWriter& json, const FSNode& folder) {
    json.open('{').path(folder.fullPath()).key("bytes").number(folder.size);
    json.key("ownFiles").number(folder.fileCount).key("ownBytes").number(folder.ownFileBytes).close('}');
}

void writeFolders(JsonWriter& json, std::vector<const FSNode*> folders) {
    std::sort(folders.begin(), folders.end(), [](const FSNode* a, const FSNode* b) {
        return a->size != b->size ? a->size > b->size : a->name() < b->name();
    });
    for (const FSNode* folder : folders) writeFolder(json, *folder);
}

void writeRoots(JsonWriter& json, const FSNode& tree) {
    json.key("roots").open('[');
    for (const FSNode& root : tree.children()) writeFolder(json, root);
    json.close(']').key("folders").open('[');
    for (const FSNode& root : tree.children()) {
        std::vector<const FSNode*> folders;
        folders.reserve(root.children().size());
        for (const FSNode& folder : root.children()) folders.push_back(&folder);
        writeFolders(json, std::move(folders));
    }
    json.close(']');
}

void writeTypes(JsonWriter& json, const TypeTotals& totals) {
    json.key("types").open('{');
    for (const FileType type : allFileTypes) {
        if (!totals.contains(type)) continue;
        json.key(rawValue(type)).open('{').key("bytes").number(totals[type].bytes);
        json.key("files").number(totals[type].count).close('}');
    }
    json.close('}');
}

void writeFiles(JsonWriter& json, std::string_view name, const std::vector<LargeFile>& files) {
    json.key(name).open('[');
    for (const LargeFile& file : files) {
        json.open('{').path(file.path).key("bytes").number(file.size).key("modified").number(file.modified);
        json.key("type").text(rawValue(file.type)).close('}');
    }
    json.close(']');
}

void writeReclaimables(JsonWriter& json, const std::vector<Reclaimable>& items) {
    json.key("categories").open('[');
    for (const auto& [category, bytes] : totalsByCategory(items)) {
        json.open('{').key("category").text(category->id).key("name").text(category->displayName);
        json.key("safety").text(rawValue(category->safety)).key("bytes").number(bytes).close('}');
    }
    json.close(']').key("reclaimables").open('[');
    for (const Reclaimable& item : items) {
        json.open('{').path(item.path).key("bytes").number(static_cast<std::int64_t>(item.size));
        json.key("category").text(item.categoryID).key("safety").text(rawValue(item.safety));
        json.key("method").text(methodSummary(item.method)).key("modified").number(item.lastModified).close('}');
    }
    json.close(']');
}

void writeChanges(JsonWriter& json, std::string_view name, const std::vector<FolderChange>& changes) {
    json.key(name).open('[');
    for (const FolderChange& change : changes) {
        json.open('{').path(change.path).key("bytesBefore").number(change.oldSize);
        json.key("bytes").number(change.newSize).close('}');
    }
    json.close(']');
}

void writeGrowth(JsonWriter& json, const Growth& growth) {
    json.key("growth").open('{').key("since").number(growth.since);
    json.key("bytesBefore").number(growth.totalBefore);
    writeChanges(json, "grew", growth.changes.grew);
    writeChanges(json, "appeared", growth.changes.appeared);
    writeChanges(json, "gone", growth.changes.gone);
    json.close('}');
}

/// Every folder that could not be read, in any order.
void writeUnreadable(JsonWriter& json, const FSNode& tree) {
    json.key("unreadable").open('[');
    std::vector<const FSNode*> pending{&tree};
    while (!pending.empty()) {
        const FSNode& folder = *pending.back();
        pending.pop_back();
        if (folder.isUnreadable()) json.open('{').path(folder.fullPath()).close('}');
        for (const FSNode& child : folder.children()) pending.push_back(&child);
    }
    json.close(']');
}

}  // namespace

void writeJson(Output& output, const Survey& survey, std::string_view version) {
    JsonWriter json(output);
    json.open('{').key("version").number(jsonVersion).key("program").text("zelk-survey");
    json.key("programVersion").text(version).key("date").number(survey.date);
    json.key("bytes").number(survey.stats.totalBytes).key("files").number(survey.stats.filesScanned);
    json.key("foldersRead").number(survey.stats.dirsScanned);
    json.key("foldersUnreadable").number(survey.stats.blockedPaths);
    writeRoots(json, *survey.tree);
    writeTypes(json, survey.insights.typeTotals);
    writeFiles(json, "largestFiles", survey.insights.topFiles);
    writeFiles(json, "diskImages", survey.insights.diskImages);
    writeReclaimables(json, survey.reclaimables);
    if (survey.growth) writeGrowth(json, *survey.growth);
    // Only where there are any: looking for them takes a walk through the whole tree.
    if (survey.stats.blockedPaths > 0)
        writeUnreadable(json, *survey.tree);
    else
        json.key("unreadable").open('[').close(']');
    json.key("seconds").open('{').key("walk").number(survey.phases.walk).key("rollUp").number(survey.phases.rollUp);
    json.key("classify").number(survey.classify).close('}').close('}');
    output.write("\n");
}

}  // namespace zelk::cli
