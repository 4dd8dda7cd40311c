// SPDX-License-Identifier: MIT
#include "reclaim/ReadAhead.h"

#include <gmock/gmock.h>

#include <condition_variable>
#include <mutex>
#include <string>
#include <tuple>
#include <vector>

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t request = ReadAhead::requestBytes;

/// Notes what is read ahead.
class NotingContents : public FileContents {
public:
    using Request = std::tuple<std::string, std::int64_t, std::int64_t>;

    std::unique_ptr<FolderWalk> walk(const std::string&) override { return nullptr; }
    std::optional<FileStamp> stamp(const ItemPath&) override { return std::nullopt; }
    std::unique_ptr<FileReading> open(const ItemPath& file) override {
        if (file.text() == "/missing") return nullptr;
        return std::make_unique<Reading>(*this, file.text());
    }

    /// Waits until so many requests were made, and returns all.
    std::vector<Request> requests(std::size_t count) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return requests_.size() >= count; });
        return requests_;
    }

private:
    class Reading : public FileReading {
    public:
        Reading(NotingContents& all, std::string path) : all_(all), path_(std::move(path)) {}
        const FileStamp& stamp() const override { return stamp_; }
        std::optional<FileStamp> stampNow() override { return stamp_; }
        std::optional<std::size_t> read(std::byte*, std::size_t) override { return std::nullopt; }
        void prefetch(std::int64_t offset, std::int64_t bytes) override {
            const std::lock_guard lock(all_.mutex_);
            all_.requests_.emplace_back(path_, offset, bytes);
            all_.changed_.notify_all();
        }

    private:
        NotingContents& all_;
        const std::string path_;
        const FileStamp stamp_;
    };

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Request> requests_;
};

ReadAhead::File file(const std::string& path, std::int64_t size) {
    return {*ItemPath::from(path), size};
}

}  // namespace

TEST(ReadAheadOfFiles, requestsTheBytesOfAllFilesInOrder) {
    NotingContents contents;
    ReadAhead ahead(contents, {file("/a", request + 1), file("/missing", 10), file("/b", 5)});
    EXPECT_THAT(contents.requests(3),
                ElementsAre(NotingContents::Request("/a", 0, request), NotingContents::Request("/a", request, 1),
                            NotingContents::Request("/b", 0, 5)));
}

TEST(ReadAheadOfFiles, staysWithinItsDistance) {
    NotingContents contents;
    constexpr auto most = static_cast<std::size_t>(ReadAhead::distance / request);
    {
        ReadAhead ahead(contents, {file("/a", 10 * ReadAhead::distance)});
        contents.requests(most);
        ahead.follow(1);
        EXPECT_EQ(contents.requests(most + 1).size(), most + 1);
    }
    EXPECT_EQ(contents.requests(0).size(), most + 1) << "and the end does not wait for the rest";
}

TEST(ReadAheadOfFiles, skipsWhatTheReaderHasPassed) {
    NotingContents contents;
    {
        ReadAhead ahead(contents, {file("/a", ReadAhead::distance), file("/b", ReadAhead::distance),
                                   file("/c", ReadAhead::distance)});
        contents.requests(static_cast<std::size_t>(ReadAhead::distance / request));
        ahead.follow(2 * ReadAhead::distance + 3 * request);
        for (const auto& [path, offset, bytes] :
             contents.requests(2 * static_cast<std::size_t>(ReadAhead::distance / request) - 3)) {
            EXPECT_NE(path, "/b");
            EXPECT_GE(offset, path == "/c" ? 3 * request : 0);
        }
    }
}

TEST(ReadAheadOfFiles, endsAtOnceWithoutFiles) {
    NotingContents contents;
    { const ReadAhead ahead(contents, {}); }
    EXPECT_THAT(contents.requests(0), IsEmpty());
}

}  // namespace zelk
