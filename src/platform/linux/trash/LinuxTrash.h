// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <utility>

#include "platform/Trash.h"
#include "platform/linux/Sandbox.h"
#include "platform/linux/trash/SharedFlush.h"

namespace zelk {

struct FileStatus;
struct TrashFolder;

/// The freedesktop.org Trash. Items on the volume of the home trash ("Trash" in the XDG data home) go there, others to
/// the trash at the top of their own volume. Items are only renamed, never copied.
///
/// In a sandbox of Flatpak the home trash is the host's. What is the sandbox's own does not go, nor does what would go
/// to a trash that nobody finds outside: a folder that is mounted into the sandbox is no top of a volume there.
class LinuxTrash : public Trash {
public:
    /// With `home`, uses that home folder and ignores the environment; empty selects the user's own.
    explicit LinuxTrash(const std::string& home = {}, Sandbox sandbox = Sandbox());

    std::string location() override;
    std::optional<std::vector<std::string>> list() override;
    TrashResult trash(const ItemPath& item) override;
    Failure restore(const TrashedItem& item) override;
    std::size_t empty() override;

private:
    /// The last number given to each name, so that the next item needs no search: thousands of items of one name would
    /// otherwise each try all names before theirs.
    class Numbers {
    public:
        std::size_t next(const std::string& key);
        void forget();

    private:
        std::mutex mutex_;
        std::map<std::string, std::size_t> last_;
    };

    /// Removes what a killed run left behind, once per trash and run.
    void sweepOnce(const TrashFolder& trash, const FileStatus& itself);
    /// Returns the reason of a failure, for display. On success `trashed` says where the item went.
    Failure move(const ItemPath& item, std::optional<TrashedItem>& trashed);
    /// Returns the reason of a failure, for display.
    Failure moveBack(const TrashedItem& item);

    Sandbox sandbox_;
    std::string home_;
    std::string dataHome_;
    Numbers numbers_;
    SharedFlush flush_;
    std::mutex sweeping_;
    std::set<std::pair<std::uint64_t, std::uint64_t>> swept_;  ///< swept trashes by device and inode
};

}  // namespace zelk
