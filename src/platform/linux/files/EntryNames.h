// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace zelk {

/// The names in one directory at a time, without "." and "..", in a buffer that is kept from one to the next. Read by
/// one thread; then any number may go through them.
class EntryNames {
public:
    /// Names between two places that forEach() can begin at.
    static constexpr std::size_t stride = 128;
    /// The memory that is kept between directories. One of hundreds of thousands of entries needs far more, which is
    /// released afterwards so that not every thread ends up holding it.
    static constexpr std::size_t keptBytes = 1024 * 1024;

    /// Reads all names of `directory`; those of the one before are gone. False if not all can be read.
    bool read(int directory);

    std::size_t count() const { return count_; }
    /// How many places there are to begin at: one for every `stride` names, the last of which may have fewer.
    std::size_t places() const { return places_.size(); }

    /// Calls `visit(name, type)` for `count` names from place `from` on, until it returns false; then this does too.
    /// `type` is one of dirent's, `name` ends with a NUL and stays where it is until the next read().
    template <class Visit>
    bool forEach(std::size_t from, std::size_t count, Visit visit) const {
        if (count == 0) return true;
        for (std::size_t at = places_[from];;) {
            const Record record = recordAt(at);
            at += record.length;
            if (isDotOrDotDot(record.name)) continue;
            if (!visit(record.name, record.type)) return false;
            if (--count == 0) return true;
        }
    }

private:
    /// The kernel's record (getdents64(2)), followed by the name.
    struct KernelEntry {
        std::uint64_t inode;
        std::int64_t offset;
        std::uint16_t length;
        std::uint8_t type;
    };
    struct Record {
        const char* name;
        std::size_t length;
        std::uint8_t type;
    };
    struct Free {
        void operator()(char* memory) const { std::free(memory); }
    };

    static bool isDotOrDotDot(const char* name) {
        return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
    }

    Record recordAt(std::size_t at) const {
        KernelEntry entry;
        const char* const record = records_.get() + at;
        std::memcpy(&entry, record, sizeof entry);
        return {record + offsetof(KernelEntry, type) + 1, entry.length, entry.type};
    }

    void makeRoom(std::size_t bytes);
    void findPlaces();
    void releaseExcessMemory();

    std::unique_ptr<char, Free> records_;
    std::size_t capacity_ = 0;
    std::size_t used_ = 0;
    std::size_t count_ = 0;
    std::vector<std::size_t> places_;  ///< where in records_ every `stride`-th name is
};

}  // namespace zelk
