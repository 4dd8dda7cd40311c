// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "fakes/FakeFileManager.h"
#include "platform/FileContents.h"
#include "platform/FolderPath.h"

namespace zelk::fakes {

/// The files of a FakeFileManager as the search for duplicates sees them. Fill the fields before other threads start.
class FakeFileContents : public FileContents {
public:
    explicit FakeFileContents(FakeFileManager& files) : files_(files) {}

    /// Files that cannot be opened.
    std::set<std::string> locked;
    /// Files whose reading fails after so many bytes.
    std::map<std::string, std::size_t> broken;
    /// Called on the reading thread before each read, without a lock; may block and may change the files.
    std::function<void(const std::string& path, std::size_t offset)> reading = [](const std::string&, std::size_t) {};

    /// Gives a file other times, as if it had been written or renamed. All files begin with the same, long ago.
    void touch(const std::string& path, FileTime modified, FileTime changed) {
        const std::lock_guard lock(mutex_);
        times_[path] = {modified, changed};
    }

    /// The files that were opened, in order, but for those that were only read ahead.
    std::vector<std::string> read() const {
        const std::lock_guard lock(mutex_);
        return read_;
    }

    std::unique_ptr<FolderWalk> walk(const std::string& root) override {
        const std::optional<FileProperties> found = files_.properties(root);
        if (!found || !found->isDirectory) return nullptr;
        return std::make_unique<Walk>(files_, root);
    }
    std::unique_ptr<FileReading> open(const ItemPath& file) override {
        const std::optional<FileStamp> found = locked.contains(file.text()) ? std::nullopt : stamp(file);
        return found ? std::make_unique<Reading>(*this, file, *found) : nullptr;
    }
    std::optional<FileStamp> stamp(const ItemPath& file) override {
        const std::optional<FileProperties> found = files_.properties(file.text());
        if (!found || found->isDirectory || found->isLink) return std::nullopt;
        FileStamp stamp;
        stamp.identity = files_.identity(file.text()).value_or(FileIdentity());
        stamp.size = static_cast<std::int64_t>(files_.content(file.text()).value_or("").size());
        const std::lock_guard lock(mutex_);
        const auto times = times_.find(file.text());
        std::tie(stamp.modified, stamp.changed) =
            times == times_.end() ? std::pair(FileTime{1'000, 0}, FileTime{1'000, 0}) : times->second;
        return stamp;
    }

private:
    class Walk : public FolderWalk {
    public:
        Walk(FakeFileManager& files, const std::string& root) : files_(files), root_(root), path_(root) {}

        const std::string& root() const override { return root_; }
        std::optional<FileIdentity> identity() override { return files_.identity(path_); }
        std::vector<FolderEntry> list(std::int64_t smallest) override {
            std::vector<FolderEntry> entries;
            for (const std::string& name : files_.list(path_).value_or(std::vector<std::string>())) {
                const std::string path = pathIn(path_, name);
                const std::optional<FileProperties> found = files_.properties(path);
                if (name.starts_with('.') || !found || found->isLink) continue;
                const auto size = static_cast<std::int64_t>(files_.content(path).value_or("").size());
                if (found->isDirectory)
                    entries.push_back({name, true, 0});
                else if (size >= smallest)
                    entries.push_back({name, false, size});
            }
            std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
            return entries;
        }
        bool enter(const std::string& name) override {
            const std::string path = pathIn(path_, name);
            const std::optional<FileProperties> found = files_.properties(path);
            if (!found || !found->isDirectory) return false;
            path_ = path;
            return true;
        }
        void leave() override { path_.resize(std::max<std::size_t>(path_.rfind('/'), 1)); }

    private:
        FakeFileManager& files_;
        const std::string root_;
        std::string path_;
    };

    class Reading : public FileReading {
    public:
        Reading(FakeFileContents& all, ItemPath file, const FileStamp& stamp)
            : all_(all),
              file_(std::move(file)),
              stamp_(stamp),
              content_(all.files_.content(file_.text()).value_or("")) {}

        const FileStamp& stamp() const override { return stamp_; }
        std::optional<FileStamp> stampNow() override { return all_.stamp(file_); }
        std::optional<std::size_t> read(std::byte* buffer, std::size_t most) override {
            if (offset_ == 0) all_.note(file_.text());
            all_.reading(file_.text(), offset_);
            const auto fails = all_.broken.find(file_.text());
            const std::size_t end = fails == all_.broken.end() ? content_.size() : fails->second;
            if (fails != all_.broken.end() && offset_ >= end) return std::nullopt;
            const std::size_t count = std::min(most, end - offset_);
            std::transform(content_.begin() + static_cast<std::ptrdiff_t>(offset_),
                           content_.begin() + static_cast<std::ptrdiff_t>(offset_ + count), buffer,
                           [](char letter) { return static_cast<std::byte>(letter); });
            offset_ += count;
            return count;
        }
        void prefetch(std::int64_t, std::int64_t) override {}

    private:
        FakeFileContents& all_;
        const ItemPath file_;
        const FileStamp stamp_;
        const std::string content_;
        std::size_t offset_ = 0;
    };

    void note(const std::string& path) {
        const std::lock_guard lock(mutex_);
        read_.push_back(path);
    }

    FakeFileManager& files_;
    mutable std::mutex mutex_;
    std::map<std::string, std::pair<FileTime, FileTime>> times_;
    std::vector<std::string> read_;
};

}  // namespace zelk::fakes
