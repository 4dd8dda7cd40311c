// SPDX-License-Identifier: MIT
// An in-memory file manager that records every call and can make any of them fail.
#pragma once

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/FileManager.h"
#include "platform/TrashedItem.h"

namespace zelk::fakes {

/// Paths are absolute, with single slashes and none at the end ("/" itself excepted). Safe from any thread.
class FakeFileManager : public FileManager {
public:
    struct Call {
        std::string operation;  ///< the name of the member function
        std::string path;

        bool operator==(const Call&) const = default;
        friend std::ostream& operator<<(std::ostream& out, const Call& call) {
            return out << call.operation << "(" << call.path << ")";
        }
    };

    // The files. Missing parents are created too.

    void addFolder(const std::string& path) {
        const std::lock_guard lock(mutex_);
        makeFolders(path);
    }
    /// `allocatedSize` defaults to the content's size rounded up to blocks of 4096.
    void addFile(const std::string& path, std::string content = {},
                 std::optional<std::uint64_t> allocatedSize = std::nullopt) {
        const std::lock_guard lock(mutex_);
        makeFolders(parentOf(path));
        const std::uint64_t blocks = (content.size() + 4095) / 4096 * 4096;
        entries_[path] = {Kind::file, std::move(content), allocatedSize.value_or(blocks), nextInode_++};
    }
    /// `target` is an absolute path, which need not exist.
    void addLink(const std::string& path, std::string target) {
        const std::lock_guard lock(mutex_);
        makeFolders(parentOf(path));
        entries_[path] = {Kind::link, std::move(target), 0, nextInode_++};
    }
    /// Lets another user own the entry at `path`.
    void giveAway(const std::string& path) {
        const std::lock_guard lock(mutex_);
        entries_[path].isOwn = false;
    }
    /// Another process takes a lock on the file at `path`, or lets go of it.
    void setLocked(const std::string& path, bool locked = true) {
        const std::lock_guard lock(mutex_);
        if (locked)
            locked_.insert(path);
        else
            locked_.erase(path);
    }
    /// Removes `path` and everything below it.
    void erase(const std::string& path) {
        const std::lock_guard lock(mutex_);
        eraseBelow(path);
    }
    /// Renames `path` with everything below it. Not recorded as a call.
    void move(const std::string& path, const std::string& newPath) {
        const std::lock_guard lock(mutex_);
        Entries moved;
        if (const auto entry = entries_.find(path); entry != entries_.end()) moved.emplace(newPath, entry->second);
        forEachBelow(path, [&](std::string_view below, const Entry& entry) {
            moved.emplace(newPath + "/" + std::string(below), entry);
        });
        eraseBelow(path);
        entries_.merge(moved);
    }

    // Failures.

    /// Calls for which this returns true fail. Called without a lock, so that a test may also change the files then;
    /// set it before other threads start.
    std::function<bool(const Call&)> failing;

    /// The errno values of opening these paths; 0 means success. Set them before other threads start.
    std::map<std::string, int> openErrors;

    // The record.

    std::vector<Call> calls() const {
        const std::lock_guard lock(mutex_);
        return calls_;
    }
    /// The paths that `operation` was called with, in order.
    std::vector<std::string> pathsOf(std::string_view operation) const {
        std::vector<std::string> paths;
        for (Call& call : calls())
            if (call.operation == operation) paths.push_back(std::move(call.path));
        return paths;
    }
    void forgetCalls() {
        const std::lock_guard lock(mutex_);
        calls_.clear();
    }
    /// The current content of a file; absent if it does not exist. Not recorded as a call.
    std::optional<std::string> content(const std::string& path) const {
        const std::lock_guard lock(mutex_);
        const auto entry = resolve(path);
        if (entry == entries_.end() || entry->second.kind != Kind::file) return std::nullopt;
        return entry->second.text;
    }

    /// The identity of the entry at `path`; absent if there is none. Not recorded as a call.
    std::optional<FileIdentity> identity(const std::string& path) const {
        const std::lock_guard lock(mutex_);
        const auto entry = entries_.find(path);
        if (entry == entries_.end()) return std::nullopt;
        return FileIdentity{0, entry->second.inode};
    }

    // FileManager

    bool exists(const std::string& path) override {
        if (fails("exists", path)) return false;
        const std::lock_guard lock(mutex_);
        return resolve(path) != entries_.end();
    }

    std::optional<FileProperties> properties(const std::string& path) override {
        if (fails("properties", path)) return std::nullopt;
        const std::lock_guard lock(mutex_);
        const auto entry = entries_.find(path);
        if (entry == entries_.end()) return std::nullopt;
        return FileProperties{entry->second.kind == Kind::folder, entry->second.allocatedSize,
                              entry->second.kind == Kind::link, entry->second.isOwn};
    }

    std::optional<std::vector<std::string>> list(const std::string& path) override {
        if (fails("list", path)) return std::nullopt;
        const std::lock_guard lock(mutex_);
        const auto folder = resolve(path);
        if (folder == entries_.end() || folder->second.kind != Kind::folder) return std::nullopt;
        std::vector<std::string> names;
        forEachBelow(folder->first, [&](std::string_view below, const Entry&) {
            if (below.find('/') == std::string_view::npos) names.emplace_back(below);
        });
        return names;
    }

    std::uint64_t allocatedSizeBelow(const std::string& path) override {
        if (fails("allocatedSizeBelow", path)) return 0;
        const std::lock_guard lock(mutex_);
        std::uint64_t size = 0;
        forEachBelow(path, [&](std::string_view below, const Entry& entry) {
            const bool hidden = below.front() == '.' || below.find("/.") != std::string_view::npos;
            if (!hidden) size += entry.allocatedSize;
        });
        return size;
    }

    std::uint64_t fullSizeBelow(const std::string& path) override {
        if (fails("fullSizeBelow", path)) return 0;
        const std::lock_guard lock(mutex_);
        std::uint64_t size = 0;
        forEachBelow(path, [&](std::string_view, const Entry& entry) { size += entry.allocatedSize; });
        return size;
    }

    /// Follows links anywhere in the path.
    std::optional<std::string> realPath(const std::string& path) override {
        if (fails("realPath", path)) return std::nullopt;
        const std::lock_guard lock(mutex_);
        std::string real = path;
        for (int hops = 0; hops < 40; ++hops) {
            std::string link;
            for (std::size_t end = real.find('/', 1);; end = real.find('/', end + 1)) {
                const auto entry = entries_.find(real.substr(0, end));
                if (entry == entries_.end()) return std::nullopt;
                if (entry->second.kind == Kind::link) {
                    link = entry->second.text + (end == std::string::npos ? "" : real.substr(end));
                    break;
                }
                if (end == std::string::npos) break;
            }
            if (link.empty()) return real;
            real = link;
        }
        return std::nullopt;
    }

    std::optional<std::string> linkTarget(const std::string& path) override {
        if (fails("linkTarget", path)) return std::nullopt;
        const std::lock_guard lock(mutex_);
        const auto entry = entries_.find(path);
        if (entry == entries_.end() || entry->second.kind != Kind::link) return std::nullopt;
        return entry->second.text;
    }

    bool isLocked(const std::string& path) override {
        if (fails("isLocked", path)) return false;
        const std::lock_guard lock(mutex_);
        return locked_.contains(path) && resolve(path) != entries_.end();
    }

    std::optional<std::string> read(const std::string& path) override {
        if (fails("read", path)) return std::nullopt;
        return content(path);
    }

    std::optional<std::string> readSmall(const std::string& path, std::size_t most) override {
        if (fails("readSmall", path)) return std::nullopt;
        std::optional<std::string> small = content(path);
        if (small && small->size() > most) small.reset();
        return small;
    }

    std::optional<std::string> readStart(const std::string& path, std::size_t most) override {
        if (fails("readStart", path)) return std::nullopt;
        std::optional<std::string> start = content(path);
        if (start) start->resize(std::min(start->size(), most));
        return start;
    }

    bool replaceDurably(const std::string& path, std::string_view content) override {
        if (fails("replaceDurably", path)) return false;
        const std::lock_guard lock(mutex_);
        const auto folder = resolve(parentOf(path));
        if (folder == entries_.end() || folder->second.kind != Kind::folder) return false;
        const auto old = entries_.find(path);
        if (old != entries_.end() && old->second.kind == Kind::folder) return false;
        entries_[path] = {Kind::file, std::string(content), (content.size() + 4095) / 4096 * 4096, nextInode_++};
        return true;
    }

    bool createDirectories(const std::string& path) override {
        if (fails("createDirectories", path)) return false;
        const std::lock_guard lock(mutex_);
        return makeFolders(path);
    }

    /// EACCES if made to fail.
    int tryOpen(const std::string& path) override {
        if (fails("tryOpen", path)) return EACCES;
        if (const auto error = openErrors.find(path); error != openErrors.end()) return error->second;
        const std::lock_guard lock(mutex_);
        return resolve(path) == entries_.end() ? ENOENT : 0;
    }

    Failure remove(const ItemPath& item) override {
        if (fails("remove", item.text())) return item.text() + " would not go";
        const std::lock_guard lock(mutex_);
        if (!entries_.contains(item.text())) return item.text() + " does not exist";
        eraseBelow(item.text());
        return std::nullopt;
    }

private:
    enum class Kind { file, folder, link };
    struct Entry {
        Kind kind = Kind::folder;
        std::string text;  ///< a file's content, a link's target
        std::uint64_t allocatedSize = 0;
        std::uint64_t inode = 0;  ///< unique, kept when the entry is renamed
        bool isOwn = true;
    };
    using Entries = std::map<std::string, Entry>;

    static std::string parentOf(const std::string& path) {
        const std::size_t slash = path.rfind('/');
        if (slash == std::string::npos) return {};
        return slash == 0 ? "/" : path.substr(0, slash);
    }

    void eraseBelow(const std::string& path) {
        entries_.erase(path);
        const std::string below = path == "/" ? path : path + "/";
        auto entry = entries_.lower_bound(below);
        while (entry != entries_.end() && entry->first.starts_with(below)) entry = entries_.erase(entry);
    }

    bool fails(const char* operation, const std::string& path) {
        Call call{operation, path};
        {
            const std::lock_guard lock(mutex_);
            calls_.push_back(call);
        }
        return failing && failing(call);
    }

    /// False if something other than a folder is in the way.
    bool makeFolders(std::string path) {
        std::vector<std::string> missing;
        while (!path.empty() && !entries_.contains(path)) {
            missing.push_back(path);
            path = parentOf(path);
        }
        if (!path.empty()) {
            const auto entry = resolve(path);
            if (entry == entries_.end() || entry->second.kind != Kind::folder) return false;
        }
        for (std::string& each : missing) entries_.emplace(std::move(each), Entry{Kind::folder, {}, 0, nextInode_++});
        return true;
    }

    /// The entry at the end of a chain of links. Links in the middle of a path are not followed.
    Entries::const_iterator resolve(std::string path) const {
        for (int hops = 0; hops < 40; ++hops) {
            const auto entry = entries_.find(path);
            if (entry == entries_.end() || entry->second.kind != Kind::link) return entry;
            path = entry->second.text;
        }
        return entries_.end();
    }

    void forEachBelow(const std::string& path,
                      const std::function<void(std::string_view below, const Entry&)>& visit) const {
        const std::string prefix = path == "/" ? path : path + "/";
        for (auto entry = entries_.lower_bound(prefix); entry != entries_.end() && entry->first.starts_with(prefix);
             ++entry)
            if (entry->first.size() > prefix.size())
                visit(std::string_view(entry->first).substr(prefix.size()), entry->second);
    }

    mutable std::mutex mutex_;
    Entries entries_{{"/", Entry{}}};
    std::set<std::string> locked_;
    std::uint64_t nextInode_ = 1;
    std::vector<Call> calls_;
};

}  // namespace zelk::fakes
