// SPDX-License-Identifier: MIT
#include "platform/linux/files/EntryNames.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <new>

namespace zelk {

namespace {

/// The room for one getdents64 call; an ordinary folder fits at once.
constexpr std::size_t readBytes = 64 * 1024;

}  // namespace

bool EntryNames::read(int directory) {
    releaseExcessMemory();
    used_ = 0;
    count_ = 0;
    places_.clear();
    while (true) {
        if (capacity_ < used_ + readBytes) makeRoom(used_ == 0 ? readBytes : used_ * 2 + readBytes);
        const long got = syscall(SYS_getdents64, directory, records_.get() + used_, capacity_ - used_);
        if (got == 0) break;
        if (got < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        used_ += static_cast<std::size_t>(got);
    }
    findPlaces();
    return true;
}

/// Not a vector: one would fill the new room with zeros, and copy what realloc() moves by moving pages.
void EntryNames::makeRoom(std::size_t bytes) {
    auto* const grown = static_cast<char*>(std::realloc(records_.get(), bytes));
    if (grown == nullptr) throw std::bad_alloc();
    static_cast<void>(records_.release());
    records_.reset(grown);
    capacity_ = bytes;
}

void EntryNames::findPlaces() {
    for (std::size_t at = 0; at < used_;) {
        const Record record = recordAt(at);
        if (!isDotOrDotDot(record.name) && count_++ % stride == 0) places_.push_back(at);
        at += record.length;
    }
}

void EntryNames::releaseExcessMemory() {
    if (capacity_ <= keptBytes) return;
    records_.reset();
    capacity_ = 0;
    std::vector<std::size_t>().swap(places_);
}

}  // namespace zelk
