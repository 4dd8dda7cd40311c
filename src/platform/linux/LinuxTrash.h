// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

namespace zelk {

/// The home trash of freedesktop.org: "Trash/files" in the XDG data home.
class LinuxTrash : public Trash {
public:
    /// With `home`, the trash of that home folder and not of the environment; empty takes the user's own.
    explicit LinuxTrash(const std::string& home = {});

    std::string location() override { return location_; }
    std::optional<std::vector<std::string>> list() override;
    Failure trash(const ItemPath& item) override;
    std::size_t empty() override;

private:
    std::string location_;
};

}  // namespace zelk
