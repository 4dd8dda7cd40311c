// SPDX-License-Identifier: MIT
// An in-memory file system for the walker: a test builds it, lets a scan walk it, and may hold the walk at a chosen
// directory to act in the middle of it.
#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/DirectoryReader.h"
#include "platform/Thread.h"

namespace zelk::fakes {

/// Build it before a scan starts; while one runs, only hold(), waitUntilHeld(), release() and timesRead() may be
/// called. Paths are absolute. Destroy it after the scan's threads have ended.
class FakeDirectoryService : public DirectoryService {
public:
    /// Creates `path` and its missing parents; "/" always exists.
    void directory(const std::string& path, TimePoint modified = 0) { make(path).modified = modified; }

    void file(const std::string& path, std::uint64_t bytes, TimePoint modified = 0) {
        newEntry(path, regularType, modified).content = newContent(bytes);
    }

    /// A link: a small file of its own, never entered below a root. As a root it leads to `target`, if given.
    void symbolicLink(const std::string& path, std::uint64_t bytes, const std::string& target = {}) {
        Node& link = newEntry(path, linkType, 0);
        link.content = newContent(bytes);
        if (!target.empty()) link.target = &existing(target);
    }

    /// Another name for the file `existingPath`.
    void hardLink(const std::string& path, const std::string& existingPath) {
        Content* content = existing(existingPath).content;
        newEntry(path, regularType, existing(existingPath).modified).content = content;
        ++content->links;
    }

    /// Sets the inode number and link count of the file `path`.
    void numbers(const std::string& path, std::uint64_t fileID, std::uint32_t links) {
        Content* content = existing(path).content;
        content->fileID = fileID;
        content->links = links;
    }

    /// A chain of `depth` nested folders called `name` in `path`. Returns nothing: at such depths building the path
    /// would dominate the test.
    void chain(const std::string& path, std::string_view name, int depth, std::uint64_t bytesInEach = 0) {
        Node* at = &make(path);
        for (int level = 0; level < depth; ++level) {
            at = &newChild(*at, std::string(name), directoryObjectType, 0);
            if (bytesInEach != 0) newChild(*at, "file", regularType, 0).content = newContent(bytesInEach);
        }
    }

    /// Puts it and everything created below it afterwards on another device, like a mount point.
    void device(const std::string& path, std::int32_t device) { make(path).device = device; }

    /// Makes it unlistable, while its status stays readable.
    void unreadable(const std::string& path) { make(path).readable = false; }
    /// A reader cannot return to it from below, as if it had been moved meanwhile.
    void lostOnTheWayBack(const std::string& path) { make(path).lostOnTheWayBack = true; }
    /// Makes its status unreadable: status() returns nothing.
    void invisible(const std::string& path) { make(path).visible = false; }

    /// How often the thread that reads a folder sleeps in it from now on, as it does for a disk.
    void sleepsPerFolder(std::int64_t times) { sleeps_ = times; }

    /// Readers share folders of `entries` entries or more, in parts of `each`. Without this they share none.
    void shareFrom(std::size_t entries, std::size_t each) {
        sharedFrom_ = entries;
        partEntries_ = each;
    }
    /// A shared folder with it cannot be read.
    void damaged(const std::string& path) { existing(path).damaged = true; }
    /// Threads that come to the entry `path` of a shared folder wait there until release().
    void holdEntry(const std::string& path) {
        const std::lock_guard lock(gate_);
        heldEntries_.insert(&existing(path));
    }
    /// The name of the thread that read the entry `path` of a shared folder; empty if none did.
    std::string entryReader(const std::string& path) {
        const std::lock_guard lock(gate_);
        const auto found = entryReaders_.find(&existing(path));
        return found == entryReaders_.end() ? std::string() : found->second;
    }

    /// Threads that list `path` wait there until release(). Several paths may be held.
    void hold(const std::string& path) {
        const std::lock_guard lock(gate_);
        held_.insert(&existing(path));
    }

    /// Waits until a thread waits at `path`, which must be held.
    void waitUntilHeld(const std::string& path) {
        const Node* node = &existing(path);
        std::unique_lock lock(gate_);
        gateMoved_.wait(lock, [&] { return waiting_.count(node) != 0; });
    }

    /// Releases the threads that are held at this folder.
    void release(const std::string& path) {
        const std::lock_guard lock(gate_);
        held_.erase(&existing(path));
        gateMoved_.notify_all();
    }

    /// Releases all held threads, now and later.
    void release() {
        const std::lock_guard lock(gate_);
        held_.clear();
        heldEntries_.clear();
        gateMoved_.notify_all();
    }

    /// How often listing `path` was attempted.
    int timesRead(const std::string& path) {
        const std::lock_guard lock(gate_);
        return reads_[&existing(path)];
    }

    std::optional<RootStatus> status(const std::string& path) override {
        const Node* node = find(path);
        if (node == nullptr || !node->visible) return std::nullopt;
        node = followed(node);
        return RootStatus{node->device, static_cast<TimePoint>(static_cast<std::int64_t>(node->modified))};
    }

    std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) override {
        const Node* node = find(path);
        if (node == nullptr || !node->visible) return nullptr;
        node = followed(node);
        if (node->type != directoryObjectType || !node->readable) return nullptr;
        return std::make_shared<Root>(node);
    }

    std::unique_ptr<DirectoryReader> makeReader() override { return std::make_unique<Reader>(*this); }

private:
    static constexpr std::uint32_t regularType = 1;
    static constexpr std::uint32_t linkType = 5;

    struct Content {
        std::uint64_t fileID;
        std::uint64_t bytes;
        std::uint32_t links = 1;
    };

    struct Node {
        std::string name;
        std::uint32_t type;
        std::int32_t device;
        TimePoint modified;
        std::uint64_t fileID;
        Content* content = nullptr;  // of a file or a link
        const Node* target = nullptr;
        bool readable = true;
        bool visible = true;
        bool lostOnTheWayBack = false;
        bool damaged = false;
        std::vector<Node*> children{};  // in order of creation, which is the order of delivery
        std::map<std::string, Node*, std::less<>> byName{};
    };

    struct Root : DirectoryRoot {
        explicit Root(const Node* top) : node(top) {}
        const Node* node;
    };

    static DirEntry entryOf(const Node* node) {
        const Content* content = node->content;
        return {node->name,
                node->type,
                content != nullptr ? content->fileID : node->fileID,
                content != nullptr ? content->links : 0,
                content != nullptr ? content->bytes : 0,
                node->device,
                node->modified};
    }

    /// The entries of a shared folder.
    struct Parts : SharedWork {
        Parts(FakeDirectoryService& its, const std::vector<Node*>& in, DirectoryReader::Entries& list)
            : service(its), children(in), entries(list) {}
        std::size_t parts() const override { return (children.size() + each - 1) / each; }
        void run(std::size_t index) override {
            for (std::size_t i = index * each; i < std::min(children.size(), (index + 1) * each); ++i) {
                service.arriveAtEntry(children[i]);
                if (children[i]->damaged) isDamaged = true;
                entries[i] = entryOf(children[i]);
            }
        }
        FakeDirectoryService& service;
        const std::vector<Node*>& children;
        DirectoryReader::Entries& entries;
        const std::size_t each = service.partEntries_;
        std::atomic<bool> isDamaged = false;
    };

    class Reader : public DirectoryReader {
    public:
        explicit Reader(FakeDirectoryService& service) : service_(service) {}

        const Entries* open(const DirectoryRoot& root, const std::string& below) override {
            standing_ = {service_.walk(static_cast<const Root&>(root).node, below)};
            return listing();
        }
        const Entries* descend(std::string_view name) override {
            const Node* from = standing_.empty() ? nullptr : standing_.back();
            standing_.push_back(from == nullptr ? nullptr : service_.child(from, name));
            return listing();
        }
        void setHelpers(Helpers* helpers) override { helpers_ = helpers; }
        std::int64_t timesSlept() const override { return slept_; }
        bool ascend() override {
            if (standing_.empty()) return false;  // reopened below the directory opened first
            standing_.pop_back();
            if (!standing_.empty() && standing_.back() != nullptr && standing_.back()->lostOnTheWayBack)
                standing_.back() = nullptr;
            return !standing_.empty() && standing_.back() != nullptr;
        }

    private:
        const Entries* listing() {
            entries_.clear();
            const Node* node = standing_.back();
            if (node == nullptr) return nullptr;
            service_.arriveAt(node);
            slept_ += service_.sleeps_;
            if (node->type != directoryObjectType || !node->readable) return nullptr;
            const std::vector<Node*>& children = node->children;
            if (helpers_ != nullptr && children.size() >= service_.sharedFrom_) return shared(children);
            for (const Node* child : children) entries_.push_back(entryOf(child));
            return &entries_;
        }

        const Entries* shared(const std::vector<Node*>& children) {
            entries_.resize(children.size());
            Parts parts(service_, children, entries_);
            return helpers_->run(parts) && !parts.isDamaged ? &entries_ : nullptr;
        }

        FakeDirectoryService& service_;
        std::vector<const Node*> standing_;  // nullptr: a level that does not exist
        Entries entries_;
        Helpers* helpers_ = nullptr;
        std::int64_t slept_ = 0;
    };

    static const Node* followed(const Node* node) { return node->target != nullptr ? node->target : node; }

    static const Node* child(const Node* node, std::string_view name) {
        const auto found = node->byName.find(name);
        return found == node->byName.end() ? nullptr : found->second;
    }

    /// Ignores repeated, leading and trailing slashes.
    static const Node* walk(const Node* node, std::string_view below) {
        while (node != nullptr && !below.empty()) {
            const std::size_t slash = below.find('/');
            const std::string_view name = below.substr(0, slash);
            below.remove_prefix(slash == std::string_view::npos ? below.size() : slash + 1);
            if (!name.empty()) node = child(node, name);
        }
        return node;
    }

    const Node* find(std::string_view path) const { return walk(top_, path); }

    Node& existing(const std::string& path) {
        const Node* node = find(path);
        if (node == nullptr) throw std::logic_error("not in the fake file system: " + path);
        return const_cast<Node&>(*node);
    }

    Node& make(const std::string& path) {
        if (const Node* node = find(path)) return const_cast<Node&>(*node);
        return newEntry(path, directoryObjectType, 0);
    }

    Node& newEntry(const std::string& path, std::uint32_t type, TimePoint modified) {
        const std::size_t slash = path.rfind('/');
        if (path.empty() || path.front() != '/' || find(path) != nullptr)
            throw std::logic_error("not a new absolute path: " + path);
        return newChild(make(slash == 0 ? "/" : path.substr(0, slash)), path.substr(slash + 1), type, modified);
    }

    Node& newChild(Node& parent, std::string name, std::uint32_t type, TimePoint modified) {
        Node& node = nodes_.emplace_back(Node{std::move(name), type, parent.device, modified, ++lastFileID_});
        parent.children.push_back(&node);
        parent.byName.emplace(node.name, &node);
        return node;
    }

    Content* newContent(std::uint64_t bytes) { return &contents_.emplace_back(Content{++lastFileID_, bytes}); }

    void arriveAt(const Node* node) {
        std::unique_lock lock(gate_);
        ++reads_[node];
        waitAt(node, held_, lock);
    }

    void arriveAtEntry(const Node* node) {
        std::unique_lock lock(gate_);
        entryReaders_[node] = currentThreadName();
        waitAt(node, heldEntries_, lock);
    }

    void waitAt(const Node* node, const std::set<const Node*>& held, std::unique_lock<std::mutex>& lock) {
        if (held.count(node) == 0) return;
        waiting_.insert(node);
        gateMoved_.notify_all();
        gateMoved_.wait(lock, [&] { return held.count(node) == 0; });
        waiting_.erase(node);
    }

    // Flat, so that deep trees are released without recursion.
    std::deque<Node> nodes_;
    std::deque<Content> contents_;
    std::uint64_t lastFileID_ = 2;
    Node* top_ = &nodes_.emplace_back(Node{"/", directoryObjectType, 1, 0, 2});

    std::mutex gate_;
    std::condition_variable gateMoved_;
    std::set<const Node*> held_;
    std::set<const Node*> heldEntries_;
    std::map<const Node*, std::string> entryReaders_;
    std::atomic<std::int64_t> sleeps_ = 0;
    std::size_t sharedFrom_ = std::numeric_limits<std::size_t>::max();
    std::size_t partEntries_ = 1;
    std::multiset<const Node*> waiting_;
    std::map<const Node*, int> reads_;
};

}  // namespace zelk::fakes
