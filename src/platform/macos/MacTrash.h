// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

namespace zelk {

/// The system's Trash, which moves an item by its path. The path is checked just before, but a folder swapped in after
/// that is followed, and another item ends up in the Trash. Emptying uses descriptors like every removal.
class MacTrash : public Trash {
public:
    /// `home` has no trailing slash.
    explicit MacTrash(const std::string& home) : home_(home), location_(home + "/.Trash") {}

    std::string location() override { return location_; }
    /// Also absent if the folder is missing: the system creates it with the account and protects it, so not finding it
    /// means no access.
    std::optional<std::vector<std::string>> list() override;
    TrashResult trash(const ItemPath& item) override;
    Failure restore(const TrashedItem& item) override;
    std::size_t empty() override;

private:
    std::string home_;
    std::string location_;
};

}  // namespace zelk
