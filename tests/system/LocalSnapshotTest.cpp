// SPDX-License-Identifier: MIT
#include "system/LocalSnapshot.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <ctime>
#include <fstream>
#include <random>
#include <sstream>
#include <unordered_set>

#include "fakes/Environment.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The time zone of the process while this exists, by rule, so that no database of zones is needed.
class TimeZone {
public:
    explicit TimeZone(const char* rule) : variable_(std::in_place, "TZ", rule) { ::tzset(); }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone() {
        variable_.reset();
        ::tzset();
    }

private:
    std::optional<fakes::EnvironmentVariable> variable_;
};

constexpr const char* centralEurope = "CET-1CEST,M3.5.0/2,M10.5.0/3";

const std::string first = "AFD82B0C-23D3-481B-9401-0A17DC46C1EC";
const std::string second = "4A6FACBE-2667-4127-8143-646C38E3C3B4";
const std::string third = "3DC0C93D-F858-4420-AC0B-49FDF23D5C3A";

/// An entry as diskutil prints it.
std::string entry(const std::string& uuid, const std::string& name, const char* purgeable) {
    return "|\n+-- " + uuid + "\n|   Name:        " + name +
           "\n|   XID:         489684\n|   Purgeable:   " + purgeable + "\n";
}

LocalSnapshot only(const std::string& text) {
    const auto all = parseSnapshotListing(text);
    EXPECT_EQ(all.size(), 1U) << text;
    return all.empty() ? LocalSnapshot() : all.front();
}

TEST(LocalSnapshots, readsWholeOutputInItsOrder) {
    const TimeZone zone("UTC0");
    const std::string text = "Snapshots for disk2s5s1 (3 found)\n|\n+-- " + first +
                             "\n|   Name:        com.apple.os.update-779BDF1556C6F688504E24FB29C75AFF\n"
                             "|   XID:         489684\n|   Purgeable:   No\n"
                             "|   NOTE:        This snapshot limits the minimum size of APFS Container disk2\n|\n+-- " +
                             second +
                             "\n|   Name:        com.apple.TimeMachine.2026-03-15-121124.local\n"
                             "|   XID:         490985\n|   Purgeable:   Yes\n|\n+-- " +
                             third +
                             "\n    Name:        NewRoot\n    XID:         9223372036855268389\n"
                             "    Purgeable:   Yes\n\n";
    EXPECT_THAT(
        parseSnapshotListing(text),
        ElementsAre(
            LocalSnapshot{"com.apple.os.update-779BDF1556C6F688504E24FB29C75AFF", std::nullopt, true, false, first},
            LocalSnapshot{"com.apple.TimeMachine.2026-03-15-121124.local", 1'773'576'684.0, false, true, second},
            LocalSnapshot{"NewRoot", std::nullopt, false, true, third}));
}

TEST(LocalSnapshots, readsSingleEntryIndentedByBlanks) {
    const LocalSnapshot one = only("Snapshot for disk3s3s1 (1 found)\n\n+-- " + first +
                                   "\n    Name:        NewRoot\n    XID:         7\n    Purgeable:   Yes\n");
    EXPECT_EQ(one, (LocalSnapshot{"NewRoot", std::nullopt, false, true, first}));
}

TEST(LocalSnapshots, threeLinesWithTreeMarksGiveOnePinnedUpdate) {
    const LocalSnapshot one = only("+-- " + first + "\n| Name: com.apple.os.update-1\n| Purgeable: No\n");
    EXPECT_TRUE(one.isOSUpdate);
    EXPECT_FALSE(one.purgeable);
    EXPECT_EQ(one.uuid, first);
    EXPECT_EQ(one.name, "com.apple.os.update-1");
}

TEST(LocalSnapshots, readsNothingFromNoText) {
    for (const char* text : {"", "\n\n", "No snapshots for disk3s1s1\n", "|\n+--\n| Name:\n"})
        EXPECT_THAT(parseSnapshotListing(text), IsEmpty()) << text;
}

TEST(LocalSnapshots, lowerCaseIdentifierBeginsAnEntry) {
    const std::string lower = "afd82b0c-23d3-481b-9401-0a17dc46c1ec";
    const std::string mixed = "Afd82b0c-23d3-481B-9401-0a17dc46c1eC";
    const auto all = parseSnapshotListing(entry(lower, "one", "Yes") + entry(mixed, "two", "No"));
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].uuid, lower);
    EXPECT_EQ(all[1].uuid, mixed);
}

TEST(LocalSnapshots, onlyWholeIdentifierBeginsAnEntry) {
    for (const std::string& line :
         {first + "0", first.substr(1), "x" + first, first + " mounted", "G" + first.substr(1),
          first.substr(0, 8) + "_" + first.substr(9), std::string("AFD82B0C23D3481B94010A17DC46C1EC")}) {
        const LocalSnapshot one = only("Name: one\nPurgeable: Yes\n" + line + "\n");
        EXPECT_EQ(one.uuid, "") << line;
        EXPECT_TRUE(one.purgeable) << line;
    }
}

TEST(LocalSnapshots, entryWithoutNameIsSkipped) {
    const auto all =
        parseSnapshotListing("+-- " + first + "\n| XID: 1\n" + entry(second, "two", "No") + "+-- " + third);
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].uuid, second);
}

TEST(LocalSnapshots, purgeableLineBeforeNameCounts) {
    EXPECT_TRUE(only(first + "\nPurgeable: Yes\nName: one\n").purgeable);
}

TEST(LocalSnapshots, purgeableFlagPassesEntryWithoutName) {
    EXPECT_TRUE(only(first + "\nPurgeable: Yes\n" + second + "\nName: two\n").purgeable);
    EXPECT_TRUE(only("Purgeable: Yes\n" + second + "\nName: two\n").purgeable);
}

TEST(LocalSnapshots, purgeableFlagEndsWithNamedEntry) {
    const auto all = parseSnapshotListing(entry(first, "one", "Yes") + second + "\nName: two\n");
    ASSERT_EQ(all.size(), 2U);
    EXPECT_TRUE(all[0].purgeable);
    EXPECT_FALSE(all[1].purgeable);
}

TEST(LocalSnapshots, purgeableMeansYesAnywhereInTheLine) {
    const auto purgeable = [](const std::string& line) { return only("Name: one\n" + line + "\n").purgeable; };
    EXPECT_TRUE(purgeable("Purgeable:Yes"));
    EXPECT_TRUE(purgeable("| Purgeable: Oh Yes, it is"));
    for (const char* line :
         {"Purgeable: yes", "Purgeable: YES", "Purgeable:", "Purgeable Yes", "purgeable: Yes", "Not Purgeable: Yes"})
        EXPECT_FALSE(purgeable(line)) << line;
    EXPECT_FALSE(purgeable("Purgeable: Yes\nPurgeable: No"));
    EXPECT_TRUE(purgeable("Purgeable: No\nPurgeable: Yes"));
}

TEST(LocalSnapshots, lastNameLineWins) {
    EXPECT_EQ(only(first + "\nName: one\nName: two\n").name, "two");
    EXPECT_THAT(parseSnapshotListing(first + "\nName: one\nName:\n"), IsEmpty());
}

TEST(LocalSnapshots, everyNameLabelIsRemovedFromName) {
    EXPECT_EQ(only("Name: aName:b Name: c").name, "ab  c");
    EXPECT_EQ(only("Name:Name:one").name, "one");
    EXPECT_EQ(only("Name:NaName:me:one").name, "Name:one");
}

TEST(LocalSnapshots, trimsTreeMarksFromLinesAndBlanksFromNames) {
    EXPECT_EQ(only("|+- \tName: \t one \t|+-").name, "one");
    EXPECT_EQ(only("Name: -one|two- \t").name, "-one|two");
    EXPECT_EQ(only("Name: one\r\n").name, "one\r");
}

TEST(LocalSnapshots, updatesAreKnownByTheirNames) {
    for (const char* name : {"com.apple.os.update-1", "os-update", "xos.updatex"})
        EXPECT_TRUE(only("Name: " + std::string(name)).isOSUpdate) << name;
    for (const char* name : {"com.apple.OS.update-1", "os_update", "osupdate", "os.Update", "NewRoot"})
        EXPECT_FALSE(only("Name: " + std::string(name)).isOSUpdate) << name;
}

TEST(LocalSnapshots, differByEveryFieldAndHashAccordingly) {
    const LocalSnapshot one{"name", 1.0, true, true, "uuid"};
    const LocalSnapshot others[] = {{"Name", 1.0, true, true, "uuid"},          {"name", 2.0, true, true, "uuid"},
                                    {"name", std::nullopt, true, true, "uuid"}, {"name", 1.0, false, true, "uuid"},
                                    {"name", 1.0, true, false, "uuid"},         {"name", 1.0, true, true, "UUID"}};
    std::unordered_set<LocalSnapshot> all{one, LocalSnapshot(one)};
    EXPECT_EQ(all.size(), 1U);
    for (const LocalSnapshot& other : others) {
        EXPECT_NE(one, other);
        EXPECT_NE(std::hash<LocalSnapshot>()(one), std::hash<LocalSnapshot>()(other));
        all.insert(other);
    }
    EXPECT_EQ(all.size(), 7U);
}

TEST(DateStamps, areTheFirstMatchOrTheWholeName) {
    EXPECT_EQ(dateStamp("com.apple.TimeMachine.2024-03-07-101502.local"), "2024-03-07-101502");
    EXPECT_EQ(dateStamp("a2024-03-07-101502b2025-03-07-101502"), "2024-03-07-101502");
    EXPECT_EQ(dateStamp("12024-03-07-1015029"), "2024-03-07-101502");
    EXPECT_EQ(dateStamp("2024-13-07-101502"), "2024-13-07-101502");
    for (const char* name : {"NewRoot", "", "2024-03-07-10150", "2024-3-07-101502", "2024-03-07 101502",
                             "2024-03-0x-101502", "٢٠٢٤-03-07-101502"})
        EXPECT_EQ(dateStamp(name), name);
}

TEST(DatesOfNames, areReadInTheCurrentTimeZone) {
    const std::string name = "com.apple.TimeMachine.2024-03-07-101502.local";
    for (const auto& [rule, time] : {std::pair("UTC0", 1'709'806'502.0),
                                     {"EST5", 1'709'824'502.0},
                                     {"IST-5:30", 1'709'786'702.0},
                                     {centralEurope, 1'709'802'902.0}}) {
        const TimeZone zone(rule);
        EXPECT_EQ(dateOfName(name), time) << rule;
    }
}

TEST(DatesOfNames, areAbsentWithoutStamp) {
    for (const char* name : {"NewRoot", "", "2024-03-07"}) EXPECT_EQ(dateOfName(name), std::nullopt) << name;
}

TEST(DatesOfNames, areAbsentForImpossibleDates) {
    const TimeZone zone("UTC0");
    for (const char* name : {"2024-13-07-101502", "2024-00-07-101502", "2024-03-00-101502", "2024-03-32-101502",
                             "2024-04-31-101502", "2023-02-29-101502", "1900-02-29-101502", "2024-03-07-241502",
                             "2024-03-07-106002", "2024-03-07-101560", "0000-03-07-101502", "2024-99-99-999999"})
        EXPECT_EQ(dateOfName(name), std::nullopt) << name;
    for (const char* name : {"2024-02-29-000000", "2000-02-29-235959", "2024-12-31-235959", "2024-01-01-000000"})
        EXPECT_NE(dateOfName(name), std::nullopt) << name;
}

TEST(DatesOfNames, areNotLookedForBehindAnImpossibleOne) {
    EXPECT_EQ(dateOfName("2024-13-07-101502 2024-03-07-101502"), std::nullopt);
}

TEST(DatesOfNames, mayLieBeforeTheEpoch) {
    const TimeZone zone("UTC0");
    EXPECT_EQ(dateOfName("1969-12-31-235959"), -1.0);
    EXPECT_EQ(dateOfName("1970-01-01-000000"), 0.0);
    EXPECT_EQ(dateOfName("1969-12-31-235958"), -2.0);
}

TEST(DatesOfNames, ofSkippedHourAreMovedOn) {
    const TimeZone zone(centralEurope);
    EXPECT_EQ(dateOfName("2024-03-31-015959"), 1'711'846'799.0);
    EXPECT_EQ(dateOfName("2024-03-31-023000"), 1'711'848'600.0) << "03:30 in summer time";
    EXPECT_EQ(dateOfName("2024-03-31-030000"), 1'711'846'800.0);
}

TEST(DatesOfNames, ofRepeatedHourAreTheFirst) {
    const TimeZone zone(centralEurope);
    for (const char* before : {"2024-07-01-120000", "2024-12-01-120000"}) {
        EXPECT_NE(dateOfName(before), std::nullopt);
        EXPECT_EQ(dateOfName("2024-10-27-023000"), 1'729'989'000.0) << "whatever was asked before";
    }
    EXPECT_EQ(dateOfName("2024-10-27-030000"), 1'729'994'400.0);
}

/// Lists like those of diskutil, with everything in them that could be mistaken.
class RandomListing {
public:
    explicit RandomListing(std::mt19937_64& random) : random_(random) {}

    std::string text() {
        std::string all;
        for (std::size_t lines = upTo(12); lines > 0; --lines)
            all += marks() + line() + marks() + (upTo(9) ? "\n" : "");
        return all;
    }

private:
    std::size_t upTo(std::size_t most) { return random_() % (most + 1); }
    template <std::size_t N>
    std::string one(const char* const (&choices)[N]) {
        return choices[upTo(N - 1)];
    }
    std::string marks() {
        std::string some;
        for (std::size_t count = upTo(3); count > 0; --count) some += "|+- \t"[upTo(4)];
        return some;
    }
    std::string identifier() {
        std::string uuid;
        for (const char c : std::string("xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx"))
            uuid += c == '-' ? '-' : "0123456789ABCDEFabcdef"[upTo(21)];
        if (upTo(9) == 0) uuid[upTo(uuid.size() - 1)] = "gG-_ 0"[upTo(5)];
        if (upTo(19) == 0) uuid.pop_back();
        return uuid;
    }
    std::string number(std::size_t least, std::size_t most, std::size_t digits) {
        const std::string text = std::to_string(least + upTo(most - least));
        return std::string(digits - std::min(digits, text.size()), '0') + text;
    }
    std::string stamp() {
        return number(1971, 2100, 4) + "-" + number(0, 13, 2) + "-" + number(0, 32, 2) + "-" + number(0, 24, 2) +
               number(0, 60, 2) + number(0, 60, 2);
    }
    /// In the hours in which the clocks change.
    std::string stampOfChange() {
        return number(2000, 2040, 4) + "-" + one({"03", "10"}) + "-" + number(24, 31, 2) + "-" + number(0, 4, 2) +
               number(0, 59, 2) + number(0, 59, 2);
    }
    std::string name() {
        std::string all;
        for (std::size_t parts = upTo(4); parts > 0; --parts) {
            const std::string part = one({"com.apple.TimeMachine.", "os.update", "os-update", "Name:", " ", "\t", "-",
                                          "Purgeable: Yes", "ä", "NewRoot", "OS.update", ".local", "9"});
            all += upTo(2) == 0 ? stamp() : upTo(2) == 0 ? stampOfChange() : part;
        }
        return all;
    }
    std::string line() {
        switch (upTo(5)) {
            case 0:
            case 1:
                return identifier();
            case 2:
            case 3:
                return "Name:" + name();
            case 4:
                return "Purgeable:" + one({" Yes", " No", "", "Yes", " yes", " No Yes"});
            default:
                return one(
                    {"XID: 7", "", "name: x", "NOTE: Name: x", "Snapshots for disk2s5s1 (3 found)", "Purgeable"});
        }
    }

    std::mt19937_64& random_;
};

std::string inHexadecimal(const std::string& text) {
    std::string spelled;
    for (const char c : text) {
        spelled += "0123456789abcdef"[static_cast<unsigned char>(c) / 16];
        spelled += "0123456789abcdef"[static_cast<unsigned char>(c) % 16];
    }
    return spelled;
}

TEST(LocalSnapshots, matchReferenceModel) {
    constexpr int cases = 10'000;
    const TimeZone zone(centralEurope);
    const zoo::TempFolder folder;
    const std::string inputPath = folder / "lists";
    const std::string outputPath = folder / "records";
    std::mt19937_64 random(20'261'122);
    std::vector<std::string> all;
    {
        std::ofstream out(inputPath);
        for (int at = 0; at < cases; ++at) out << inHexadecimal(all.emplace_back(RandomListing(random).text())) << '\n';
    }
    const std::string command =
        "python3 '" ZELK_SOURCE_DIR "/tests/system/snapshot_model.py' < '" + inputPath + "' > '" + outputPath + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);

    std::ifstream in(outputPath);
    std::size_t found = 0;
    std::size_t dated = 0;
    for (const std::string& text : all) {
        std::string expected;
        ASSERT_TRUE(std::getline(in, expected));
        std::ostringstream actual;
        for (const LocalSnapshot& snapshot : parseSnapshotListing(text)) {
            if (actual.tellp() > 0) actual << ' ';
            actual << inHexadecimal(snapshot.name) << ' '
                   << (snapshot.uuid.empty() ? "-" : inHexadecimal(snapshot.uuid)) << ' ';
            if (snapshot.date)
                actual << static_cast<long long>(*snapshot.date);
            else
                actual << '-';
            actual << ' ' << snapshot.isOSUpdate << ' ' << snapshot.purgeable;
            ++found;
            dated += snapshot.date.has_value() ? 1 : 0;
        }
        ASSERT_EQ(actual.str(), expected) << text;
    }
    EXPECT_GT(found, 5'000U) << "most lists are empty";
    EXPECT_GT(dated, 1'000U) << "most dates are impossible";
}

}  // namespace
}  // namespace zelk
