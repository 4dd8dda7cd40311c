// SPDX-License-Identifier: MIT
#include "PausingDirectories.h"

#include <utility>

namespace zelk::tour {

namespace {

constexpr std::uint32_t fileObjectType = 1;
constexpr DirEntry emptyFile{"empty", fileObjectType, 0, 1, 0, 0, 0};

}  // namespace

class PausingDirectories::Reader : public DirectoryReader {
public:
    Reader(PausingDirectories& gate, std::unique_ptr<DirectoryReader> real) : gate_(gate), real_(std::move(real)) {}

    const Entries* open(const DirectoryRoot& root, const std::string& below) override {
        return through(real_->open(root, below));
    }
    const Entries* descend(std::string_view name) override { return through(real_->descend(name)); }
    bool ascend() override { return real_->ascend(); }

private:
    const Entries* through(const Entries* entries) {
        if (const std::size_t more = gate_.crowd_; entries != nullptr && more > 0) {
            crowded_ = *entries;
            crowded_.resize(entries->size() + more, emptyFile);
            entries = &crowded_;
        }
        gate_.pass(entries == nullptr ? 0 : static_cast<std::int64_t>(entries->size()));
        return entries;
    }

    PausingDirectories& gate_;
    std::unique_ptr<DirectoryReader> real_;
    Entries crowded_;
};

void PausingDirectories::pauseAfter(std::int64_t entries) {
    const std::lock_guard lock(mutex_);
    armed_ = true;
    left_ = entries;
    resumed_.notify_all();
}

void PausingDirectories::resume() {
    const std::lock_guard lock(mutex_);
    armed_ = false;
    resumed_.notify_all();
}

bool PausingDirectories::paused() {
    const std::lock_guard lock(mutex_);
    return waiting_ > 0;
}

std::unique_ptr<DirectoryReader> PausingDirectories::makeReader() {
    return std::make_unique<Reader>(*this, real_.makeReader());
}

void PausingDirectories::pass(std::int64_t entries) {
    std::unique_lock lock(mutex_);
    if (!armed_) return;
    left_ -= entries;
    if (left_ > 0) return;
    ++waiting_;
    resumed_.wait(lock, [this] { return !armed_ || left_ > 0; });
    --waiting_;
}

}  // namespace zelk::tour
