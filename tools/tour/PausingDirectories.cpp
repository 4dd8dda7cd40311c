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
    Reader(PausingDirectories& all, std::unique_ptr<DirectoryReader> real) : all_(all), real_(std::move(real)) {}

    const Entries* open(const DirectoryRoot& root, const std::string& below) override {
        return through(real_->open(root, below));
    }
    const Entries* descend(std::string_view name) override { return through(real_->descend(name)); }
    bool ascend() override { return real_->ascend(); }

private:
    const Entries* through(const Entries* entries) {
        if (const std::size_t more = all_.crowd_; entries != nullptr && more > 0) {
            crowded_ = *entries;
            crowded_.resize(entries->size() + more, emptyFile);
            entries = &crowded_;
        }
        all_.gate_.pass(entries == nullptr ? 0 : static_cast<std::int64_t>(entries->size()));
        return entries;
    }

    PausingDirectories& all_;
    std::unique_ptr<DirectoryReader> real_;
    Entries crowded_;
};

std::unique_ptr<DirectoryReader> PausingDirectories::makeReader() {
    return std::make_unique<Reader>(*this, real_.makeReader());
}

}  // namespace zelk::tour
