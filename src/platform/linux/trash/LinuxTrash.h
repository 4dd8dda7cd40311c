// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <utility>

#include "platform/Trash.h"

namespace zelk {

struct FileStatus;
struct TrashFolder;

/// The Trash of freedesktop.org. What lies on the volume of the home trash ("Trash" in the XDG data home) goes there,
/// anything else to the trash at the top of its own volume. An item is only ever renamed, never copied.
class LinuxTrash : public Trash {
public:
    /// With `home`, the trash of that home folder and not of the environment; empty takes the user's own.
    explicit LinuxTrash(const std::string& home = {});

    std::string location() override;
    std::optional<std::vector<std::string>> list() override;
    Failure trash(const ItemPath& item) override;
    std::size_t empty() override;

private:
    /// The numbers that items of one name have come to, so that the next one needs no search: of thousands called the
    /// same, each would otherwise try the names of all before it.
    class Numbers {
    public:
        std::size_t next(const std::string& key);
        void forget();

    private:
        std::mutex mutex_;
        std::map<std::string, std::size_t> last_;
    };

    /// Once in a run and trash: what a run that was killed has left there.
    void sweepAtFirst(const TrashFolder& trash, const FileStatus& itself);
    /// The reason for a person if it could not be moved.
    Failure move(const ItemPath& item);

    std::string home_;
    std::string dataHome_;
    Numbers numbers_;
    std::mutex sweeping_;
    std::set<std::pair<std::uint64_t, std::uint64_t>> swept_;  ///< the trashes by device and inode
};

}  // namespace zelk
