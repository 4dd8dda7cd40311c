// SPDX-License-Identifier: MIT
#include "reclaim/CleanupSelection.h"

#include <gmock/gmock.h>

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr TimePoint now = 1'750'000'000;

Reclaimable item(const std::string& path, const std::string& category, std::uint64_t size, double daysOld = 100) {
    const auto row = reclaimCategoryByID().find(category);
    const ReclaimSafety safety = row == reclaimCategoryByID().end() ? ReclaimSafety::review : row->second->safety;
    return {path, path, size, category, safety, ReclaimMethod::trash(), now - daysOld * secondsPerDay};
}

std::vector<std::string> paths(const std::vector<Reclaimable>& items) {
    std::vector<std::string> all;
    for (const Reclaimable& one : items) all.push_back(one.path);
    return all;
}

std::optional<std::string> nobody(const Reclaimable&) {
    return std::nullopt;
}

/// The first row of the catalogue with this grade.
std::string idOf(ReclaimSafety safety) {
    for (const ReclaimCategory& row : reclaimCatalogue())
        if (row.safety == safety) return std::string(row.id);
    return {};
}

const std::string safeID = idOf(ReclaimSafety::safe);
const std::string rebuiltID = idOf(ReclaimSafety::regenerates);
const std::string reviewID = idOf(ReclaimSafety::review);

}  // namespace

TEST(AgeFilter, zeroDaysKeepEverything) {
    const std::vector<Reclaimable> items{item("/new", safeID, 1, 0), item("/old", safeID, 1, 100)};
    EXPECT_THAT(paths(ageFiltered(items, 0, now)), ElementsAre("/new", "/old"));
    EXPECT_THAT(paths(ageFiltered(items, -3, now)), ElementsAre("/new", "/old"));
}

TEST(AgeFilter, excludesItemOfExactlyThatAge) {
    const std::vector<Reclaimable> items{item("/exactly", safeID, 1, 14), item("/older", safeID, 1, 14.001),
                                         item("/younger", safeID, 1, 13)};
    EXPECT_THAT(paths(ageFiltered(items, 14, now)), ElementsAre("/older"));
}

TEST(CleanupGroups, sortsGroupsAndItemsBySize) {
    const auto groups = cleanupGroups({item("/a", safeID, 10), item("/b", rebuiltID, 15), item("/c", safeID, 20)});
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].category->id, safeID);
    EXPECT_THAT(paths(groups[0].items), ElementsAre("/c", "/a"));
    EXPECT_EQ(groups[0].bytes(), 30);
    EXPECT_EQ(groups[1].category->id, rebuiltID);
}

TEST(CleanupGroups, dropsUnknownCategories) {
    EXPECT_THAT(cleanupGroups({item("/a", "no such row", 10)}), IsEmpty());
}

TEST(CleanupSelection, seedsEverythingButReviewItems) {
    const std::vector<Reclaimable> items{item("/a", safeID, 1), item("/b", rebuiltID, 1), item("/c", reviewID, 1)};
    CleanupSelection selection;
    selection.seed(items, nobody);
    EXPECT_THAT(selection.selected(), UnorderedElementsAre("/a", "/b"));
    selection.toggle(items[0]);
    selection.seed(items, nobody);
    EXPECT_THAT(selection.selected(), UnorderedElementsAre("/b"));
    EXPECT_EQ(selection.seededFor(), 3U);
}

TEST(CleanupSelection, emptyListClearsSelection) {
    CleanupSelection selection;
    selection.seed({item("/a", safeID, 1)}, [](const Reclaimable&) { return "App"; });
    selection.seed({}, nobody);
    EXPECT_EQ(selection.seededFor(), 0U);
    EXPECT_THAT(selection.selected(), IsEmpty());
    EXPECT_THAT(selection.runningConflicts(), IsEmpty());
}

TEST(CleanupSelection, sameLengthKeepsSelectionAndConflicts) {
    CleanupSelection selection;
    selection.seed({item("/a", safeID, 1)}, [](const Reclaimable&) { return "App"; });
    selection.seed({item("/b", safeID, 1)}, nobody);
    EXPECT_TRUE(selection.runningConflicts().contains("/a"));
}

TEST(CleanupSelection, itemsInUseAreNeverToggledOrCleaned) {
    const std::vector<Reclaimable> items{item("/used", safeID, 1), item("/free", safeID, 2)};
    CleanupSelection selection;
    selection.seed(items, [](const Reclaimable& one) {
        return one.path == "/used" ? std::optional<std::string>("Cursor") : std::nullopt;
    });
    EXPECT_EQ(selection.conflictOf(items[0]), "Cursor");
    EXPECT_EQ(selection.conflictOf(items[1]), "");
    selection.toggle(items[0]);
    EXPECT_TRUE(selection.contains(items[0]));
    EXPECT_THAT(paths(selection.chosen(items)), ElementsAre("/free"));
}

TEST(CleanupSelection, togglesOnAndOff) {
    const Reclaimable one = item("/a", reviewID, 1);
    CleanupSelection selection;
    selection.toggle(one);
    EXPECT_TRUE(selection.contains(one));
    selection.toggle(one);
    EXPECT_FALSE(selection.contains(one));
}

TEST(CleanupSelection, setAllSkipsItemsInUse) {
    const std::vector<Reclaimable> items{item("/used", reviewID, 1), item("/b", reviewID, 1), item("/c", reviewID, 1)};
    const CleanupGroup group = cleanupGroups(items).front();
    CleanupSelection selection;
    selection.seed(items, [](const Reclaimable& one) {
        return one.path == "/used" ? std::optional<std::string>("Mail") : std::nullopt;
    });
    EXPECT_EQ(selection.counts(group), (CleanupSelection::Counts{0, 2}));
    selection.setAll(group, true);
    EXPECT_EQ(selection.counts(group), (CleanupSelection::Counts{2, 2}));
    EXPECT_TRUE(selection.counts(group).all());
    EXPECT_FALSE(selection.contains(items[0]));
    selection.setAll(group, false);
    EXPECT_EQ(selection.counts(group), (CleanupSelection::Counts{0, 2}));
}

TEST(CleanupSelection, groupEntirelyInUseHasNothingSelectable) {
    const std::vector<Reclaimable> items{item("/a", reviewID, 1), item("/b", reviewID, 1)};
    const CleanupGroup group = cleanupGroups(items).front();
    CleanupSelection selection;
    selection.seed(items, [](const Reclaimable&) { return "Mail"; });
    selection.setAll(group, true);
    EXPECT_EQ(selection.counts(group), (CleanupSelection::Counts{0, 0}));
    EXPECT_FALSE(selection.counts(group).all());
    EXPECT_THAT(selection.selected(), IsEmpty());
}

TEST(CleanupSelection, filteredItemsStaySelectedButAreNotCleaned) {
    const std::vector<Reclaimable> items{item("/new", safeID, 1, 1), item("/old", safeID, 1, 100)};
    CleanupSelection selection;
    selection.seed(items, nobody);
    EXPECT_THAT(paths(selection.chosen(ageFiltered(items, 14, now))), ElementsAre("/old"));
    EXPECT_TRUE(selection.contains(items[0]));
}

TEST(CleanupSelection, selectOnlyReplacesSelection) {
    const std::vector<Reclaimable> items{item("/a", safeID, 1), item("/b", reviewID, 1)};
    CleanupSelection selection;
    selection.seed(items, nobody);
    selection.selectOnly({items[1]});
    EXPECT_THAT(selection.selected(), UnorderedElementsAre("/b"));
}

}  // namespace zelk
