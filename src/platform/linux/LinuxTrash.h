// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <mutex>

#include "platform/Trash.h"

namespace zelk {

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

    /// The reason for a person if it could not be moved.
    Failure move(const ItemPath& item);

    std::string dataHome_;
    Numbers numbers_;
};

}  // namespace zelk
