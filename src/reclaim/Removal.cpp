// SPDX-License-Identifier: MIT
#include "reclaim/Removal.h"

#include <utility>

namespace zelk {

Removal::Removal(std::size_t items, std::function<void(const Removal&)> ended)
    : items_(items), ended_(std::move(ended)), left_(items) {}

void Removal::noteDone() {
    ++done_;
    noteSkipped();
}

void Removal::noteSkipped() {
    if (--left_ == 0) ended_(*this);
}

}  // namespace zelk
