// SPDX-License-Identifier: MIT
#include "platform/macos/BulkRecords.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {
namespace {

constexpr std::uint32_t regularFile = 1;
constexpr ListedDirectory listed{.device = 77, .modified = 1234.5};

// The attribute sets of records: everything requested, or the name only.
constexpr std::uint32_t allCommon = 0x8200040B;
constexpr std::uint32_t onlyName = 0x80000001;
constexpr std::uint32_t errorToo = 0x20000000;
constexpr std::uint32_t allOfAFile = 5;

/// Writes records field by field, so that each can be wrong on its own.
class Records {
public:
    struct Fields {
        std::string name = "a";
        std::uint32_t type = regularFile;
        std::int32_t device = 16777220;
        std::int64_t seconds = 1700000000;
        std::int64_t nanoseconds = 0;
        std::uint64_t fileID = 42;
        std::uint32_t linkCount = 1;
        std::uint64_t allocatedSize = 4096;
        std::uint32_t common = allCommon;
    };

    /// Returns the record's offset.
    std::size_t add(const Fields& fields) {
        const std::size_t start = bytes_.size();
        const bool isDirectory = fields.type == directoryObjectType;
        const std::size_t nameAt = isDirectory ? 64 : 76;
        bytes_.resize(start + (nameAt + fields.name.size() + 1 + 7) / 8 * 8);
        set(start, static_cast<std::uint32_t>(bytes_.size() - start));
        set(start + 4, fields.common);
        set(start + 16, isDirectory ? 0 : allOfAFile);
        set(start + 24, static_cast<std::int32_t>(nameAt - 24));
        set(start + 28, static_cast<std::uint32_t>(fields.name.size() + 1));
        set(start + 32, fields.device);
        set(start + 36, fields.type);
        set(start + 40, fields.seconds);
        set(start + 48, fields.nanoseconds);
        set(start + 56, fields.fileID);
        if (!isDirectory) {
            set(start + 64, fields.linkCount);
            set(start + 68, fields.allocatedSize);
        }
        std::memcpy(bytes_.data() + start + nameAt, fields.name.data(), fields.name.size());
        ++count_;
        return start;
    }

    /// Adds the record of an entry with an error: only a name, after `fixedPart` zero bytes.
    std::size_t addUnasked(const std::string& name, std::size_t fixedPart, std::uint32_t common = onlyName) {
        const std::size_t start = bytes_.size();
        bytes_.resize(start + (fixedPart + name.size() + 1 + 7) / 8 * 8);
        set(start, static_cast<std::uint32_t>(bytes_.size() - start));
        set(start + 4, common);
        set(start + 24, static_cast<std::int32_t>(fixedPart - 24));
        set(start + 28, static_cast<std::uint32_t>(name.size() + 1));
        std::memcpy(bytes_.data() + start + fixedPart, name.data(), name.size());
        ++count_;
        return start;
    }

    template <typename Value>
    void set(std::size_t offset, Value value) {
        std::memcpy(bytes_.data() + offset, &value, sizeof value);
    }

    void cutTo(std::size_t size) { bytes_.resize(size); }
    std::size_t size() const { return bytes_.size(); }

    bool decodes() { return decodes(count_); }
    bool decodes(std::size_t count) {
        entries.clear();
        // Copy to the exact size, so that AddressSanitizer detects reads past the end.
        exact_.assign(bytes_.begin(), bytes_.end());
        exact_.shrink_to_fit();
        return decodeBulkRecords(exact_, count, listed, entries);
    }

    DirectoryReader::Entries entries;

private:
    std::vector<std::byte> bytes_;
    std::vector<std::byte> exact_;
    std::size_t count_ = 0;
};

TEST(BulkRecords, decodesAllFieldsOfAFile) {
    Records records;
    records.add({.name = "film.mov",
                 .device = -7,
                 .seconds = 1234567890,
                 .nanoseconds = 500000000,
                 .fileID = 0x123456789ABCDEF0,
                 .linkCount = 3,
                 .allocatedSize = 0x7000000012345678});
    ASSERT_TRUE(records.decodes());
    ASSERT_EQ(records.entries.size(), 1U);
    const DirEntry& entry = records.entries[0];
    EXPECT_EQ(entry.name, "film.mov");
    EXPECT_EQ(entry.objType, regularFile);
    EXPECT_EQ(entry.fileID, 0x123456789ABCDEF0U);
    EXPECT_EQ(entry.linkCount, 3U);
    EXPECT_EQ(entry.allocSize, 0x7000000012345678U);
    EXPECT_EQ(entry.deviceID, -7);
    EXPECT_EQ(entry.modTime, 1234567890.5);
}

TEST(BulkRecords, fileRecordTakesEightyBytesAndDirectoryRecordSeventyTwo) {
    Records records;
    EXPECT_EQ(records.add({.name = "a"}), 0U);
    EXPECT_EQ(records.add({.name = "a", .type = directoryObjectType}), 80U);
    EXPECT_EQ(records.size(), 152U);
    EXPECT_TRUE(records.decodes());
    EXPECT_EQ(records.entries.size(), 2U);
}

TEST(BulkRecords, directoryNameIsNotReadAsLinkCountOrSize) {
    Records records;
    records.add({.name = "a name that stands where a file has its figures", .type = directoryObjectType});
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[0].name, "a name that stands where a file has its figures");
    EXPECT_EQ(records.entries[0].linkCount, 0U);
    EXPECT_EQ(records.entries[0].allocSize, 0U);
}

TEST(BulkRecords, decodesDirectoryTooShortForFileAttributes) {
    Records records;
    records.add({.name = "a", .type = directoryObjectType});
    records.set(0, std::uint32_t{66});
    records.cutTo(66);
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[0].name, "a");
}

TEST(BulkRecords, acceptsUnpaddedLastRecord) {
    Records records;
    records.add({.name = "first"});
    const std::size_t last = records.add({.name = "b"});
    records.set(last, std::uint32_t{78});
    records.cutTo(last + 78);
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[1].name, "b");
}

/// An entry of which only the name is known.
void expectUnasked(const DirEntry& entry, std::string_view name) {
    EXPECT_EQ(entry.name, name);
    EXPECT_EQ(entry.objType, directoryObjectType) << "only opening it can tell";
    EXPECT_EQ(entry.deviceID, listed.device) << "or it would pass for a mount point";
    EXPECT_EQ(entry.fileID, 0U);
    EXPECT_EQ(entry.linkCount, 0U);
    EXPECT_EQ(entry.allocSize, 0U);
    EXPECT_EQ(entry.modTime, listed.modified) << "or it would pass for ancient";
}

TEST(BulkRecords, entryWithoutAttributesHasNoSize) {
    for (const std::size_t fixedPart : {32, 64, 76}) {
        Records records;
        records.add({.name = "before"});
        records.addUnasked("Documents", fixedPart);
        records.addUnasked("a film whose name stands where figures stand.mov", fixedPart);
        records.add({.name = "behind"});
        ASSERT_TRUE(records.decodes()) << fixedPart;
        ASSERT_EQ(records.entries.size(), 4U);
        expectUnasked(records.entries[1], "Documents");
        expectUnasked(records.entries[2], "a film whose name stands where figures stand.mov");
        EXPECT_EQ(records.entries[0].allocSize, 4096U);
        EXPECT_EQ(records.entries[3].allocSize, 4096U);
    }
}

TEST(BulkRecords, errorOverridesOtherAttributes) {
    Records records;
    records.add({.name = "film.mov", .common = allCommon | errorToo});
    ASSERT_TRUE(records.decodes());
    expectUnasked(records.entries[0], "film.mov");
}

TEST(BulkRecords, missingTypeOverridesOtherAttributes) {
    Records records;
    records.add({.name = "film.mov", .common = allCommon & ~8U});
    ASSERT_TRUE(records.decodes());
    expectUnasked(records.entries[0], "film.mov");
}

TEST(BulkRecords, skipsErrorNumberBeforeName) {
    for (const std::int32_t error : {1, 13, 36, 40, 60}) {
        Records records;
        const std::size_t start = records.addUnasked("Documents", 36, onlyName | errorToo);
        records.set(start + 24, error);
        records.set(start + 28, std::int32_t{36 - 28});
        records.set(start + 32, std::uint32_t{10});
        ASSERT_TRUE(records.decodes()) << error;
        expectUnasked(records.entries[0], "Documents");
    }
}

TEST(BulkRecords, findsNameWhenErrorNumberIsOmitted) {
    for (const std::size_t fixedPart : {32, 64}) {
        Records records;
        records.addUnasked("Documents", fixedPart, onlyName | errorToo);
        ASSERT_TRUE(records.decodes()) << fixedPart;
        expectUnasked(records.entries[0], "Documents");
    }
}

TEST(BulkRecords, acceptsRecordWithNameOnly) {
    for (const std::uint32_t common : {onlyName, onlyName | errorToo}) {
        Records records;
        const std::size_t start = records.addUnasked("n", 32, common);
        records.set(start, std::uint32_t{34});
        records.cutTo(34);
        ASSERT_TRUE(records.decodes());
        expectUnasked(records.entries[0], "n");
    }
}

TEST(BulkRecords, rejectsRecordWithoutName) {
    Records records;
    records.addUnasked("Documents", 64, 0x80000000);
    EXPECT_FALSE(records.decodes());
}

TEST(BulkRecords, fileWithoutSizeIsEmptyAndNotReadPastItsFixedPart) {
    for (const std::uint32_t file : {0U, 1U}) {
        Records records;
        const std::size_t start = records.add({.name = "film.mov", .linkCount = 7});
        records.set(start + 16, file);
        ASSERT_TRUE(records.decodes());
        EXPECT_EQ(records.entries[0].objType, regularFile);
        EXPECT_EQ(records.entries[0].fileID, 42U);
        EXPECT_EQ(records.entries[0].deviceID, 16777220);
        EXPECT_EQ(records.entries[0].modTime, 1700000000);
        EXPECT_EQ(records.entries[0].linkCount, 0U);
        EXPECT_EQ(records.entries[0].allocSize, 0U);
    }
    Records ends;
    const std::size_t start = ends.addUnasked("f", 64, allCommon);
    ends.set(start + 36, regularFile);
    ends.set(start, std::uint32_t{66});
    ends.cutTo(66);
    ASSERT_TRUE(ends.decodes());
    EXPECT_EQ(ends.entries[0].objType, regularFile);
    EXPECT_EQ(ends.entries[0].allocSize, 0U);
}

TEST(BulkRecords, ignoresSizeOfDirectory) {
    Records records;
    const std::size_t start = records.add({.name = "a name longer than figures", .type = directoryObjectType});
    records.set(start + 16, allOfAFile);
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[0].allocSize, 0U);
    EXPECT_EQ(records.entries[0].linkCount, 0U);
}

TEST(BulkRecords, missingDeviceDefaultsToTheDirectorys) {
    Records records;
    records.add({.device = 0, .common = allCommon & ~2U});
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[0].deviceID, listed.device);
    EXPECT_EQ(records.entries[0].allocSize, 4096U);
}

TEST(BulkRecords, rejectsRecordTooShortForItsAttributes) {
    for (const std::uint32_t length : {34U, 40U, 63U}) {
        Records records;
        const std::size_t start = records.addUnasked("n", 32, allCommon);
        records.add({});
        records.set(start, length);
        EXPECT_FALSE(records.decodes(1)) << length;
    }
    for (const std::uint32_t length : {66U, 75U}) {
        Records records;
        const std::size_t start = records.addUnasked("f", 64, allCommon);
        records.set(start + 16, allOfAFile);
        records.set(start + 36, regularFile);
        records.add({});
        records.set(start, length);
        EXPECT_FALSE(records.decodes(1)) << length;
    }
    for (std::uint32_t length = 0; length < 34; ++length) {
        Records records;
        const std::size_t start = records.addUnasked("n", 32);
        records.set(start, length);
        records.cutTo(length);
        EXPECT_FALSE(records.decodes(1)) << length;
    }
}

TEST(BulkRecords, linkHasItsOwnTypeAndSize) {
    Records records;
    records.add({.name = "link", .type = 5, .allocatedSize = 0});
    records.add({.name = "long link", .type = 5, .allocatedSize = 4096});
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[0].objType, 5U);
    EXPECT_EQ(records.entries[0].allocSize, 0U);
    EXPECT_EQ(records.entries[1].allocSize, 4096U);
}

TEST(BulkRecords, dropsOnlyDotAndDotDot) {
    Records records;
    for (const char* name : {".", "..", "...", ".hidden", "..x"})
        records.add({.name = name, .type = directoryObjectType});
    ASSERT_TRUE(records.decodes());
    std::vector<std::string_view> names;
    for (const DirEntry& entry : records.entries) names.push_back(entry.name);
    EXPECT_THAT(names, testing::ElementsAre("...", ".hidden", "..x"));
}

TEST(BulkRecords, appendsInOrderOfDelivery) {
    Records records;
    for (const char* name : {"z", "a", "m"}) records.add({.name = name});
    ASSERT_TRUE(records.decodes());
    ASSERT_EQ(records.entries.size(), 3U);
    EXPECT_EQ(records.entries[0].name, "z");
    EXPECT_EQ(records.entries[1].name, "a");
    EXPECT_EQ(records.entries[2].name, "m");

    DirectoryReader::Entries entries{records.entries[2]};
    EXPECT_TRUE(decodeBulkRecords({}, 0, listed, entries));
    EXPECT_EQ(entries.size(), 1U);
}

TEST(BulkRecords, keepsNamesThatAreNotUtf8) {
    Records records;
    records.add({.name = "\xFF\xFE\n\x01 caf\xC3\xA9"});
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[0].name, "\xFF\xFE\n\x01 caf\xC3\xA9");
}

TEST(BulkRecords, readsNameToItsTerminatorAndIgnoresItsLength) {
    Records records;
    records.add({.name = "name"});
    records.set(28, std::uint32_t{0xFFFFFFFF});
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[0].name, "name");
}

TEST(BulkRecords, timeBefore1970IsNegative) {
    Records records;
    records.add({.seconds = -2, .nanoseconds = 250000000});
    ASSERT_TRUE(records.decodes());
    EXPECT_EQ(records.entries[0].modTime, -1.75);
}

TEST(BulkRecords, rejectsCountLargerThanTheBuffer) {
    Records records;
    records.add({});
    EXPECT_FALSE(records.decodes(2));
    EXPECT_FALSE(Records().decodes(1));
}

TEST(BulkRecords, rejectsRecordLengthOutOfRange) {
    for (const std::uint32_t length : {0U, 4U, 63U, 64U, 75U, 81U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        Records records;
        records.add({});
        records.set(0, length);
        EXPECT_FALSE(records.decodes()) << length;
    }
    for (const std::uint32_t length : {0U, 63U, 64U, 65U, 73U, 0xFFFFFFF8U}) {
        Records records;
        records.add({.type = directoryObjectType});
        records.set(0, length);
        EXPECT_FALSE(records.decodes()) << length;
    }
}

TEST(BulkRecords, rejectsTruncatedBuffer) {
    for (std::size_t size = 0; size < 80; ++size) {
        Records records;
        records.add({});
        records.cutTo(size);
        EXPECT_FALSE(records.decodes()) << size;
    }
}

TEST(BulkRecords, rejectsNameOutsideItsRecord) {
    for (const std::int32_t offset : {-25, 56, 57, 0x7FFFFFFF, INT32_MIN}) {
        Records records;
        records.add({});
        records.add({.name = "next"});
        records.set(24, offset);
        EXPECT_FALSE(records.decodes()) << offset;
    }
}

TEST(BulkRecords, rejectsUnterminatedName) {
    Records records;
    records.add({.name = "abc"});  // fills its 80 bytes
    records.add({});
    records.set(79, 'd');
    EXPECT_FALSE(records.decodes());
}

TEST(BulkRecords, rejectsEmptyNamesAndNamesWithSlash) {
    for (const char* name : {"", "/", "a/b", "../../etc"}) {
        Records records;
        records.add({.name = name, .type = directoryObjectType});
        EXPECT_FALSE(records.decodes()) << name;
    }
}

TEST(BulkRecords, oneBrokenRecordRejectsTheBuffer) {
    Records records;
    records.add({.name = "good"});
    const std::size_t broken = records.add({.name = "broken"});
    records.add({.name = "never seen"});
    records.set(broken, std::uint32_t{8});
    EXPECT_FALSE(records.decodes());
}

}  // namespace
}  // namespace zelk
