// SPDX-License-Identifier: MIT
// What a program hands to the application that presses every button and may change nothing: these say that it was done.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ChildProcess.h"
#include "platform/FileManager.h"
#include "platform/Trash.h"

namespace zelk::tour {

class PretendingTrash : public Trash {
public:
    explicit PretendingTrash(Trash& real) : real_(real) {}

    std::string location() override { return real_.location(); }
    std::optional<std::vector<std::string>> list() override { return real_.list(); }
    Failure trash(const ItemPath&) override { return std::nullopt; }
    std::size_t empty() override { return 0; }

private:
    Trash& real_;
};

class PretendingFiles : public FileManager {
public:
    explicit PretendingFiles(FileManager& real) : real_(real) {}

    bool exists(const std::string& path) override { return real_.exists(path); }
    std::optional<FileProperties> properties(const std::string& path) override { return real_.properties(path); }
    std::optional<std::vector<std::string>> list(const std::string& path) override { return real_.list(path); }
    std::uint64_t allocatedSizeBelow(const std::string& path) override { return real_.allocatedSizeBelow(path); }
    std::optional<std::string> read(const std::string& path) override { return real_.read(path); }
    bool replaceDurably(const std::string& path, std::string_view content) override {
        return real_.replaceDurably(path, content);
    }
    bool createDirectories(const std::string& path) override { return real_.createDirectories(path); }
    int tryOpen(const std::string& path) override { return real_.tryOpen(path); }
    Failure remove(const ItemPath&) override { return std::nullopt; }

private:
    FileManager& real_;
};

class PretendingProcesses : public ChildProcess {
public:
    ChildOutcome run(const std::string&, const std::vector<std::string>&) override { return {}; }
};

}  // namespace zelk::tour
