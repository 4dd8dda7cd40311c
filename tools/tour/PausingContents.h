// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "PauseGate.h"
#include "platform/FileContents.h"

namespace zelk::tour {

/// The real files, whose reading pauses after a number of bytes, for pictures of a running search.
class PausingContents : public FileContents {
public:
    explicit PausingContents(FileContents& real) : real_(real) {}

    PauseGate& gate() { return gate_; }

    std::unique_ptr<FolderWalk> walk(const std::string& root) override { return real_.walk(root); }
    std::optional<FileStamp> stamp(const ItemPath& file) override { return real_.stamp(file); }
    std::unique_ptr<FileReading> open(const ItemPath& file) override {
        std::unique_ptr<FileReading> reading = real_.open(file);
        if (!reading) return nullptr;
        return std::make_unique<Reading>(gate_, std::move(reading));
    }

private:
    class Reading : public FileReading {
    public:
        Reading(PauseGate& gate, std::unique_ptr<FileReading> real) : gate_(gate), real_(std::move(real)) {}

        const FileStamp& stamp() const override { return real_->stamp(); }
        std::optional<FileStamp> stampNow() override { return real_->stampNow(); }
        std::optional<std::size_t> read(std::byte* buffer, std::size_t most) override {
            const std::optional<std::size_t> got = real_->read(buffer, most);
            gate_.pass(static_cast<std::int64_t>(got.value_or(0)));
            return got;
        }
        void prefetch(std::int64_t offset, std::int64_t bytes) override { real_->prefetch(offset, bytes); }

    private:
        PauseGate& gate_;
        const std::unique_ptr<FileReading> real_;
    };

    FileContents& real_;
    PauseGate gate_;
};

}  // namespace zelk::tour
