// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"

namespace zelk {

class MacTrash : public Trash {
public:
    /// `home` without a slash at its end.
    explicit MacTrash(const std::string& home) : location_(home + "/.Trash") {}

    std::string location() override { return location_; }
    /// Absent also if there is no such folder: the system makes it with the account and guards it, so whoever cannot
    /// find it has not been let in.
    std::optional<std::vector<std::string>> list() override;
    Failure trash(const ItemPath& item) override;
    std::size_t empty() override;

private:
    std::string location_;
};

}  // namespace zelk
