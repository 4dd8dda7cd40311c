// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

namespace zelk {

/// The system's own. It moves an item by its path: the way that the item was found is looked at just before, but what
/// is put in place of a folder on it in the moment between is followed, and what then lies in the Trash is something
/// else. Emptying goes by descriptors, like every removal.
class MacTrash : public Trash {
public:
    /// `home` without a slash at its end.
    explicit MacTrash(const std::string& home) : home_(home), location_(home + "/.Trash") {}

    std::string location() override { return location_; }
    /// Absent also if there is no such folder: the system makes it with the account and guards it, so whoever cannot
    /// find it has not been let in.
    std::optional<std::vector<std::string>> list() override;
    Failure trash(const ItemPath& item) override;
    std::size_t empty() override;

private:
    std::string home_;
    std::string location_;
};

}  // namespace zelk
