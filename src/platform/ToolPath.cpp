// SPDX-License-Identifier: MIT
#include "platform/ToolPath.h"

#include <algorithm>
#include <vector>

#include "platform/FileManager.h"
#include "platform/FolderPath.h"

namespace zelk {

namespace {

constexpr std::size_t largestList = 64 * 1024;
constexpr std::string_view listOfAll = "/etc/paths";
constexpr std::string_view listsOfOthers = "/etc/paths.d";
constexpr std::string_view systemFolders = "/usr/bin:/bin:/usr/sbin:/sbin";

/// Calls `each` with every non-empty part of `text` between separators.
template <class Each>
void forEachPart(std::string_view text, char separator, Each each) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0) each(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

class Folders {
public:
    /// Takes a folder once. A relative one would be looked for wherever the tool starts, and a colon cannot be escaped.
    void add(std::string_view folder) {
        if (!folder.starts_with('/') || folder.find(':') != std::string_view::npos) return;
        if (std::find(taken_.begin(), taken_.end(), folder) != taken_.end()) return;
        taken_.emplace_back(folder);
        joined_ += (joined_.empty() ? "" : ":") + taken_.back();
    }

    /// One folder in each line.
    void addList(FileManager& files, const std::string& path) {
        const std::string text = files.readSmall(path, largestList).value_or("");
        forEachPart(text, '\n', [this](std::string_view line) { add(line); });
    }

    const std::string& joined() const { return joined_; }

private:
    std::vector<std::string> taken_;
    std::string joined_;
};

}  // namespace

std::string toolPath(std::string_view inherited, FileManager& files, const std::string& home) {
    Folders folders;
    forEachPart(inherited.empty() ? systemFolders : inherited, ':',
                [&](std::string_view folder) { folders.add(folder); });
    folders.addList(files, std::string(listOfAll));
    std::vector<std::string> lists = files.list(std::string(listsOfOthers)).value_or(std::vector<std::string>());
    std::sort(lists.begin(), lists.end());
    for (const std::string& list : lists) folders.addList(files, pathIn(std::string(listsOfOthers), list));
    folders.add("/opt/homebrew/bin");
    for (const char* const folder : {".cargo/bin", "Library/pnpm", ".local/bin"}) folders.add(pathIn(home, folder));
    return folders.joined();
}

}  // namespace zelk
