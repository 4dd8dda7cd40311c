// SPDX-License-Identifier: MIT
#include "reclaim/TraceScanner.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "fakes/PrivacyHome.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

class Traces : public testing::Test {
protected:
    TraceFindings find() { return findTraces(machine.files, machine.locations, machine.system); }
    Strings identities() {
        Strings all;
        for (const Trace& trace : find().traces) all.push_back(trace.identity());
        return all;
    }
    Trace trace(const std::string& identity) {
        for (Trace& found : find().traces)
            if (found.identity() == identity) return found;
        ADD_FAILURE() << "no " << identity;
        return {};
    }
    Strings move(const Trace& trace, const std::string& path) {
        Strings moved;
        for (const MovedPath& one : moveToTrash(machine.files, machine.trash, trace, path)) moved.push_back(one.path);
        return moved;
    }

    fakes::FakePlatform machine;
    const std::string home = "/home/me";
};

class TracesOfMac : public Traces {
protected:
    TracesOfMac() { fakes::fillWithTraces(machine); }
};

class TracesOfLinux : public Traces {
protected:
    TracesOfLinux() { fakes::fillWithLinuxTraces(machine); }
};

TEST_F(TracesOfMac, areThoseThatExistLargestFirst) {
    EXPECT_THAT(identities(),
                ElementsAre("SafariCaches", "ChromeCaches", "SafariHistory", "ChromeCookies", "SystemRecent items"));
    const Trace caches = trace("SafariCaches");
    EXPECT_EQ(caches.size, 6'000'000U);
    EXPECT_EQ(caches.sizes.at(caches.paths[1]), 1'000'000U);
    EXPECT_FALSE(find().firefoxHistoryStays);
    EXPECT_THAT(find().locks, IsEmpty());
    EXPECT_THAT(find().running, IsEmpty());
}

TEST_F(TracesOfMac, ofTheSameSizeKeepTheOrderOfTheTable) {
    machine.files.addFile(home + "/Library/Caches/company.thebrowser.Browser/data", {}, 4'000'000);
    machine.files.addFile(home + "/Library/Caches/Firefox/data", {}, 4'000'000);
    const Strings found = identities();
    EXPECT_EQ(Strings(found.begin() + 1, found.begin() + 4), (Strings{"ChromeCaches", "ArcCaches", "FirefoxCaches"}));
}

TEST_F(TracesOfMac, haveNoCompanionThatTheTableDoesNotName) {
    EXPECT_THAT(trace("SafariHistory").paths,
                ElementsAre(home + "/Library/Safari/History.db", home + "/Library/Safari/History.db-wal"));
}

TEST_F(TracesOfMac, keepTheOnePathOfTwoThatExists) {
    machine.files.erase(home + "/Library/Safari/History.db-wal");
    EXPECT_THAT(trace("SafariHistory").paths, ElementsAre(home + "/Library/Safari/History.db"));
    EXPECT_EQ(trace("SafariHistory").size, 2'000'000U);
}

TEST_F(TracesOfMac, ofChromeWithoutItsDefaultFolderAreItsCachesAlone) {
    machine.files.erase(home + "/Library/Application Support/Google/Chrome/Default");
    EXPECT_THAT(trace("ChromeCaches").paths, ElementsAre(home + "/Library/Caches/Google/Chrome"));
    EXPECT_THAT(identities(), testing::Not(testing::Contains("ChromeCookies")));
}

TEST_F(TracesOfMac, countNoHiddenEntries) {
    machine.files.addFile(home + "/Library/Caches/Google/Chrome/.hidden", {}, 50'000'000);
    EXPECT_EQ(trace("ChromeCaches").size, 4'000'000U);
}

TEST_F(TracesOfMac, whoseWalIsLeftAloneGoWithoutTheirDatabase) {
    const Trace history = trace("SafariHistory");
    EXPECT_EQ(leadingPaths(history), history.paths);
    machine.files.failing = [](const auto& call) {
        return call.operation == "trash" && call.path.ends_with("History.db");
    };
    EXPECT_THAT(move(history, history.paths[0]), IsEmpty());
    EXPECT_THAT(move(history, history.paths[1]), ElementsAre(history.paths[1]));
}

TEST_F(TracesOfMac, areMovedPathByPath) {
    const Trace history = trace("SafariHistory");
    EXPECT_THAT(move(history, history.paths[0]), ElementsAre(history.paths[0]));
    EXPECT_TRUE(machine.files.identity(history.paths[1]));
    EXPECT_TRUE(machine.files.identity(home + "/Library/Safari/History.db-shm"));
}

TEST_F(TracesOfMac, areTheSystemsEvenWhereAFolderLooksLikeAProfile) {
    machine.files.addFile(home + "/Library/Caches/Firefox/a/logins.json", {}, 10);
    const Trace caches = trace("FirefoxCaches");
    EXPECT_THAT(move(caches, caches.paths.front()), ElementsAre(home + "/Library/Caches/Firefox"));
}

TEST_F(TracesOfLinux, areThoseThatExistLargestFirst) {
    EXPECT_THAT(identities(), ElementsAre("ChromiumCaches", "FirefoxCookies", "FirefoxCaches", "GNOME WebHistory",
                                          "SystemThumbnails"));
}

TEST_F(TracesOfLinux, haveTheCookiesOfEveryProfileWithTheirCompanions) {
    EXPECT_THAT(trace("FirefoxCookies").paths, ElementsAre(fakes::firefoxOfLinux + "/a.idle/cookies.sqlite",
                                                           fakes::firefoxOfLinux + "/b.used/cookies.sqlite",
                                                           fakes::firefoxOfLinux + "/b.used/cookies.sqlite-wal"));
    EXPECT_EQ(trace("FirefoxCookies").size, 6'000'000U);
}

TEST_F(TracesOfLinux, haveEveryKindOfCompanion) {
    const std::string history = fakes::chromiumOfLinux + "/Default/History";
    for (const char* ending : {"", "-journal", "-shm", "-wal", "-old"}) machine.files.addFile(history + ending, "x");
    EXPECT_THAT(trace("ChromiumHistory").paths,
                ElementsAre(history, history + "-wal", history + "-shm", history + "-journal"));
    EXPECT_EQ(trace("ChromiumHistory").size, 4 * 4096U);
}

TEST_F(TracesOfLinux, areNoCompanionsWithoutTheirDatabase) {
    machine.files.addFile(fakes::chromiumOfLinux + "/Default/History-journal", "x");
    machine.files.erase(fakes::firefoxOfLinux + "/b.used/cookies.sqlite");
    EXPECT_THAT(identities(), testing::Not(testing::Contains("ChromiumHistory")));
    EXPECT_THAT(trace("FirefoxCookies").paths, ElementsAre(fakes::firefoxOfLinux + "/a.idle/cookies.sqlite"));
}

TEST_F(TracesOfLinux, includeProfilesOfEveryPackageAndElsewhere) {
    const std::string old = home + "/.mozilla/firefox";
    machine.files.addFile(old + "/profiles.ini",
                          "[Profile0]\nIsRelative=0\nPath=/data/mine\n[Profile1]\nIsRelative=1\nPath=own\n");
    machine.files.addFile("/data/mine/cookies.sqlite", {}, 1);
    machine.files.addFile(old + "/own/cookies.sqlite", {}, 1);
    const Strings paths = trace("FirefoxCookies").paths;
    EXPECT_THAT(Strings(paths.end() - 2, paths.end()),
                ElementsAre("/data/mine/cookies.sqlite", old + "/own/cookies.sqlite"));
}

TEST_F(TracesOfLinux, countAProfileThatTwoListsNameOnce) {
    machine.files.addFile(home + "/.mozilla/firefox/profiles.ini",
                          "[Profile0]\nIsRelative=0\nPath=" + fakes::firefoxOfLinux + "/b.used\n");
    EXPECT_EQ(trace("FirefoxCookies").size, 6'000'000U);
    EXPECT_EQ(std::ranges::count(find().locks, "Firefox", &BrowserLock::app), 2);
}

TEST_F(TracesOfLinux, lieBelowTheHomeWithoutXdgFolders) {
    machine.locations.xdg.reset();
    EXPECT_EQ(identities().size(), 5U);
}

TEST_F(TracesOfLinux, sayWhereAHistoryOfFirefoxStays) {
    EXPECT_TRUE(find().firefoxHistoryStays);
    machine.files.erase(fakes::firefoxOfLinux + "/b.used/places.sqlite");
    EXPECT_FALSE(find().firefoxHistoryStays) << "the profiles have none yet";
    machine.files.addFile(fakes::firefoxOfLinux + "/a.idle/places.sqlite");
    EXPECT_TRUE(find().firefoxHistoryStays);
}

// As where XDG_CACHE_HOME and XDG_CONFIG_HOME name one folder, or a link leads there.
TEST_F(TracesOfLinux, areNoCachesThatHoldAProfile) {
    for (const char* kept : {"/Local State", "/Default/Bookmarks", "/a/b/Login Data", "/a/b/Web Data-journal"}) {
        machine.files.addFile(home + "/.cache/chromium" + kept);
        EXPECT_THAT(identities(), testing::Not(testing::Contains("ChromiumCaches"))) << kept;
        machine.files.erase(home + "/.cache/chromium" + kept);
    }
    EXPECT_THAT(identities(), testing::Contains("ChromiumCaches"));
    machine.files.addFile(home + "/.cache/chromium/a/b/c/Bookmarks");  // no profile lies that deep
    EXPECT_THAT(identities(), testing::Contains("ChromiumCaches"));
}

TEST_F(TracesOfLinux, areNoCachesThatNobodyCanLookInto) {
    machine.files.addFolder(home + "/.cache/chromium/Default");
    for (const char* folder : {"/.cache/chromium", "/.cache/chromium/Default"}) {
        machine.files.failing = [&](const auto& call) {
            return call.operation == "list" && call.path == home + folder;
        };
        EXPECT_THAT(identities(), testing::Not(testing::Contains("ChromiumCaches"))) << folder;
    }
    machine.files.failing = [](const auto&) { return false; };
    EXPECT_THAT(identities(), testing::Contains("ChromiumCaches"));
}

TEST_F(TracesOfLinux, areLookedAtAgainBeforeTheyGo) {
    const Trace caches = trace("ChromiumCaches");
    machine.files.addFile(home + "/.cache/chromium/Default/Bookmarks");
    EXPECT_THAT(move(caches, caches.paths.front()), IsEmpty());
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(TracesOfLinux, areMovedWithTheCompanionsThatTheyHaveByThen) {
    const Trace cookies = trace("FirefoxCookies");
    const std::string idle = fakes::firefoxOfLinux + "/a.idle/cookies.sqlite";
    const std::string used = fakes::firefoxOfLinux + "/b.used/cookies.sqlite";
    EXPECT_THAT(leadingPaths(cookies), ElementsAre(idle, used));
    EXPECT_THAT(companionsIn(cookies, idle), IsEmpty());
    EXPECT_THAT(companionsIn(cookies, used), ElementsAre(used + "-wal"));
    machine.files.addFile(idle + "-wal", {}, 70);
    machine.files.erase(used + "-wal");
    const std::vector<MovedPath> moved = moveToTrash(machine.files, machine.trash, cookies, idle);
    ASSERT_EQ(moved.size(), 2U);
    EXPECT_EQ(moved[0].path, idle);
    EXPECT_EQ(moved[0].size, 1'000'000U);
    EXPECT_EQ(moved[1].path, idle + "-wal");
    EXPECT_EQ(moved[1].size, 70U);
    EXPECT_EQ(moved[1].item->origin.text(), idle + "-wal");
    EXPECT_THAT(move(cookies, used), ElementsAre(used));
}

TEST_F(TracesOfLinux, keepTheCompanionsOfADatabaseThatStays) {
    const Trace cookies = trace("FirefoxCookies");
    const std::string used = fakes::firefoxOfLinux + "/b.used/cookies.sqlite";
    machine.files.failing = [&](const auto& call) { return call.operation == "trash" && call.path == used; };
    EXPECT_THAT(move(cookies, used), IsEmpty());
    EXPECT_TRUE(machine.files.identity(used + "-wal"));
}

TEST_F(TracesOfLinux, moveNothingThatTheScanDidNotFind) {
    const Trace caches = trace("ChromiumCaches");
    EXPECT_THAT(move(caches, fakes::chromiumOfLinux), IsEmpty());
    EXPECT_TRUE(machine.files.identity(fakes::chromiumOfLinux));
}

TEST_F(TracesOfLinux, areMovedAsLinksIfTheyAreLinks) {
    machine.files.move(home + "/.cache/chromium", "/data/chromium");
    machine.files.addLink(home + "/.cache/chromium", "/data/chromium");
    const Trace caches = trace("ChromiumCaches");
    EXPECT_EQ(caches.size, 0U);
    EXPECT_THAT(move(caches, caches.paths.front()), ElementsAre(home + "/.cache/chromium"));
    EXPECT_TRUE(machine.files.identity("/data/chromium/Default/Cache/data_0"));
}

class Locks : public TracesOfLinux {
protected:
    std::set<std::string> running() { return runningByLocks(machine.files, find().locks); }
    void link(const std::string& target) {
        machine.files.erase(fakes::chromiumOfLinux + "/SingletonLock");
        machine.files.addLink(fakes::chromiumOfLinux + "/SingletonLock", target);
    }
};

TEST_F(Locks, ofFirefoxAreHeldAndNotMerelyThere) {
    EXPECT_THAT(running(), IsEmpty());
    machine.files.setLocked(fakes::firefoxOfLinux + "/b.used/.parentlock");
    EXPECT_THAT(running(), ElementsAre("Firefox"));
    machine.files.setLocked(fakes::firefoxOfLinux + "/b.used/.parentlock", false);
    EXPECT_THAT(running(), IsEmpty());
}

TEST_F(Locks, ofChromiumNameAProcessOfThisMachine) {
    machine.files.addFolder("/proc/4711");
    link("my-host-4711");
    EXPECT_THAT(running(), ElementsAre("Chromium"));
    for (const char* stale : {"my-host-4712", "other-4711", "host-4711", "my-host", "my-host-", "my-host-4711x",
                              "my-host--4711", "4711", "-4711", "", "my-host-../4711", "my-host-sys"}) {
        link(stale);
        EXPECT_THAT(running(), IsEmpty()) << stale;
    }
}

// Its own processes have the same numbers as others of the host.
TEST_F(Locks, ofChromiumAreHeldInASandboxIfTheyNameThisMachine) {
    machine.locations.sandboxed = true;
    link("my-host-4711");
    EXPECT_THAT(running(), ElementsAre("Chromium"));
    EXPECT_THAT(find().running, ElementsAre("Chromium"));
    machine.files.addFolder("/proc/4711");
    EXPECT_THAT(running(), ElementsAre("Chromium"));
    for (const char* stale : {"other-4711", "my-host", "my-host-", "my-host-4711x", "", "my-host-sys"}) {
        link(stale);
        EXPECT_THAT(running(), IsEmpty()) << stale;
    }
}

TEST_F(Locks, ofFirefoxAreHeldInASandboxAsOutside) {
    machine.locations.sandboxed = true;
    EXPECT_THAT(running(), IsEmpty());
    machine.files.setLocked(fakes::firefoxOfLinux + "/b.used/.parentlock");
    EXPECT_THAT(running(), ElementsAre("Firefox"));
}

TEST_F(Locks, tellNothingOnAMachineWithoutAName) {
    machine.files.addFolder("/proc/4711");
    for (const char* name : {"", "\n"}) {
        machine.files.addFile("/proc/sys/kernel/hostname", name);
        link("-4711");
        EXPECT_THAT(running(), IsEmpty());
    }
    machine.files.erase("/proc/sys/kernel/hostname");
    EXPECT_THAT(running(), IsEmpty());
}

TEST_F(Locks, thatAreNoLinksTellNothing) {
    machine.files.addFolder("/proc/4711");
    machine.files.addFile(fakes::chromiumOfLinux + "/SingletonLock", "my-host-4711");
    EXPECT_THAT(running(), IsEmpty());
}

}  // namespace
}  // namespace zelk
