// SPDX-License-Identifier: MIT
#include "ui/controls/RowModel.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <string>

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Keys = std::vector<std::string_view>;

Keys applied(Keys rows, const RowEdits& edits, const Keys& after) {
    for (const RowRange& range : edits.removals) {
        const auto first = rows.begin() + static_cast<std::ptrdiff_t>(range.first);
        rows.erase(first, first + static_cast<std::ptrdiff_t>(range.count));
    }
    for (const RowRange& range : edits.insertions) {
        const auto first = after.begin() + static_cast<std::ptrdiff_t>(range.first);
        rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(range.first), first,
                    first + static_cast<std::ptrdiff_t>(range.count));
    }
    return rows;
}

std::size_t touched(const RowEdits& edits) {
    std::size_t rows = 0;
    for (const RowRange& range : edits.removals) rows += range.count;
    return rows;
}

}  // namespace

TEST(RowEdits, equalListsNeedNoEdits) {
    const RowEdits edits = rowEdits({"a", "b"}, {"a", "b"});
    EXPECT_THAT(edits.removals, IsEmpty());
    EXPECT_THAT(edits.insertions, IsEmpty());
}

TEST(RowEdits, removesRowsFromTheEnd) {
    EXPECT_THAT(rowEdits({"a", "b", "c", "d", "e"}, {"b", "e"}).removals, ElementsAre(RowRange{2, 2}, RowRange{0, 1}));
}

TEST(RowEdits, insertsRowsFromTheFront) {
    EXPECT_THAT(rowEdits({"b", "e"}, {"a", "b", "c", "d", "e"}).insertions,
                ElementsAre(RowRange{0, 1}, RowRange{2, 2}));
}

TEST(RowEdits, movedRowTouchesNoOther) {
    const RowEdits edits = rowEdits({"a", "b", "c", "d"}, {"d", "a", "b", "c"});
    EXPECT_THAT(edits.removals, ElementsAre(RowRange{3, 1}));
    EXPECT_THAT(edits.insertions, ElementsAre(RowRange{0, 1}));
}

TEST(RowEdits, fillsAndEmptiesList) {
    EXPECT_THAT(rowEdits({}, {"a", "b"}).insertions, ElementsAre(RowRange{0, 2}));
    EXPECT_THAT(rowEdits({"a", "b"}, {}).removals, ElementsAre(RowRange{0, 2}));
}

TEST(RowEdits, turnsAnyListIntoAnyOther) {
    std::mt19937 random(7);
    std::vector<std::string> names;
    for (int i = 0; i < 12; ++i) names.push_back(std::to_string(i));
    const auto some = [&] {
        Keys keys(names.begin(), names.end());
        std::shuffle(keys.begin(), keys.end(), random);
        keys.resize(random() % (keys.size() + 1));
        return keys;
    };
    for (int round = 0; round < 2'000; ++round) {
        const Keys before = some();
        const Keys after = some();
        ASSERT_EQ(applied(before, rowEdits(before, after), after), after);
    }
}

TEST(RowEdits, keepsAsManyRowsAsPossible) {
    std::mt19937 random(8);
    Keys rows{"a", "b", "c", "d", "e", "f"};
    Keys other = rows;
    for (int round = 0; round < 200; ++round) {
        std::shuffle(other.begin(), other.end(), random);
        // The length of the longest common subsequence, by brute force.
        std::size_t most = 0;
        for (unsigned set = 0; set < 64; ++set) {
            Keys one;
            Keys two;
            for (std::size_t row = 0; row < 6; ++row) {
                if (set >> row & 1) one.push_back(rows[row]);
                const auto place = std::find(rows.begin(), rows.end(), other[row]) - rows.begin();
                if (set >> place & 1) two.push_back(other[row]);
            }
            if (one == two) most = std::max(most, one.size());
        }
        ASSERT_EQ(touched(rowEdits(rows, other)), 6 - most);
    }
}

}  // namespace zelk
