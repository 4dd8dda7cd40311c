// SPDX-License-Identifier: MIT
// Processes that compete for the Trash, and processes that are killed. No item may be lost, and everything in the Trash
// must be restorable.
//
//   trash_rounds race ROUNDS   two processes trash items of the same names and one restores them, while four others
//                              keep emptying
//   trash_rounds kill ROUNDS   ROUNDS times, a clean-up is killed at a random moment, and the next run trashes one item
//
// Prints a summary; status 0 if everything was correct.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <future>
#include <new>
#include <random>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/NativePlatform.h"
#include "platform/linux/trash/LinuxTrash.h"
#include "reclaim/Cleaner.h"

namespace {

namespace fs = std::filesystem;

using zelk::fakes::fileContent;
using zelk::fakes::namesIn;
using zelk::fakes::restorable;
using zelk::fakes::writeFile;

int faults = 0;

void require(bool holds, const std::string& what) {
    if (holds) return;
    ++faults;
    std::printf("FAULT: %s\n", what.c_str());
}

/// A temporary home for one round.
class Place {
public:
    Place() : path_((fs::temp_directory_path() / "zelk-rounds-XXXXXX").string()) {
        if (::mkdtemp(path_.data()) == nullptr) throw std::system_error(errno, std::generic_category(), path_);
        fs::create_directory(home());
    }
    ~Place() { fs::remove_all(path_); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    std::string home() const { return path_ + "/home"; }
    std::string trash() const { return home() + "/.local/share/Trash"; }
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

/// Runs `work` in a child process, whose status is its result.
pid_t start(const std::function<int()>& work) {
    std::fflush(stdout);
    const pid_t child = ::fork();
    if (child == 0) ::_exit(work());
    return child;
}

/// -1 if a signal ended it.
int wait(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Creates items, every other one a folder. Each holds its own path, to identify it.
void makeItem(const std::string& path, bool isFolder) {
    fs::create_directories(isFolder ? path + "/below" : fs::path(path).parent_path().string());
    if (isFolder) writeFile(path + "/file", path);
    writeFile(isFolder ? path + "/below/file" : path, path);
}

bool isWhole(const std::string& there, const std::string& path) {
    if (!fs::is_directory(there)) return fileContent(there) == path;
    return fileContent(there + "/file") == path && fileContent(there + "/below/file") == path;
}

/// Checks that everything in the Trash is whole and restorable, and that no info lacks content.
void requireGoodTrash(const Place& place, const std::string& when) {
    if (!fs::exists(place.trash() + "/files")) return;  // killed before it was created
    const auto found = restorable(place.trash());
    for (const std::string& name : namesIn(place.trash() + "/files")) {
        const std::string info = place.trash() + "/info/" + name + ".trashinfo";
        const auto path = zelk::fakes::pathInTrashInfo(fileContent(info));
        require(path.has_value(), name + " has no info " + when);
        if (path)
            require(isWhole(place.trash() + "/files/" + name, *path), name + " is not what its info says " + when);
    }
}

void requireNoOrphan(const Place& place, const std::string& when) {
    for (const std::string& info : namesIn(place.trash() + "/info")) {
        const std::string content = place.trash() + "/files/" + info.substr(0, info.rfind('.'));
        require(fs::exists(fs::symlink_status(content)), info + " has no content " + when);
    }
}

// Race: two trashing processes, one that trashes and restores, and four that empty.

constexpr int raceNames = 24;
constexpr int racePasses = 4;

/// Trashes the same names `passes` times, while another process does too. Returns the number of errors.
int trashTheSameNames(const Place& place, int who, int passes) {
    zelk::LinuxTrash trash(place.home());
    int wrong = 0;
    for (int pass = 0; pass < passes; ++pass) {
        for (int number = 0; number < raceNames; ++number) {
            const std::string path = place.path() + "/" + std::to_string(who) + "/" + std::to_string(number);
            makeItem(path, number % 2 == 0);
            const bool failed = trash.trash(zelk::ItemPath::from(path).value()).failure.has_value();
            if (failed || fs::exists(fs::symlink_status(path))) ++wrong;
        }
    }
    return wrong;
}

/// Trashes and restores items of the same names. Each must come back whole, unless it was emptied meanwhile. Returns
/// the number of errors.
int trashAndRestoreTheSameNames(const Place& place) {
    zelk::LinuxTrash trash(place.home());
    int wrong = 0;
    for (int pass = 0; pass < racePasses; ++pass) {
        for (int number = 0; number < raceNames; ++number) {
            const std::string path = place.path() + "/2/" + std::to_string(number);
            makeItem(path, number % 2 == 0);
            const zelk::TrashResult moved = trash.trash(zelk::ItemPath::from(path).value());
            if (!moved.item) {
                ++wrong;
                continue;
            }
            const bool isBack = !trash.restore(*moved.item);
            if (isBack ? !isWhole(path, path) : fs::exists(fs::symlink_status(path))) ++wrong;
        }
    }
    return wrong;
}

void race() {
    const Place place;
    void* const shared =
        ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "mmap");
    auto& over = *new (shared) std::atomic<int>(0);

    std::vector<pid_t> emptying;
    for (int emptier = 0; emptier < 4; ++emptier) {
        emptying.push_back(start([&] {
            while (over.load() == 0) zelk::LinuxTrash(place.home()).empty();
            return 0;
        }));
    }
    const auto trashing = [&](int passes) {
        std::vector<pid_t> both;
        for (const int who : {0, 1}) both.push_back(start([&, who] { return trashTheSameNames(place, who, passes); }));
        for (const pid_t one : both) require(wait(one) == 0, "an item could not be trashed");
    };
    const pid_t restoring = start([&] { return trashAndRestoreTheSameNames(place); });
    trashing(racePasses);
    require(wait(restoring) == 0, "an item that was restored is not what it was");
    over = 1;
    for (const pid_t emptier : emptying) require(wait(emptier) == 0, "an emptying died");
    requireGoodTrash(place, "after the emptying");
    requireNoOrphan(place, "after the emptying");
    // Nobody empties from here on, so everything trashed now must be there at the end.
    const std::size_t before = namesIn(place.trash() + "/files").size();
    trashing(1);
    requireGoodTrash(place, "in the end");
    const std::size_t there = namesIn(place.trash() + "/files").size() - before;
    require(there == 2 * raceNames, "only " + std::to_string(there) + " of the last items are in the Trash");
    ::munmap(shared, sizeof(std::atomic<int>));
}

// Kill: an interrupted clean-up.

constexpr int killItems = 60;

std::string itemOf(const Place& place, int number) {
    return place.path() + "/project" + std::to_string(number) + "/" + (number % 3 == 0 ? "venv" : "node_modules");
}

std::vector<zelk::Reclaimable> makeItems(const Place& place) {
    std::vector<zelk::Reclaimable> items;
    for (int number = 0; number < killItems; ++number) {
        zelk::Reclaimable item;
        item.id = item.path = itemOf(place, number);
        item.rootLength = place.path().size();
        item.size = 1;
        item.categoryID = "node_modules";
        makeItem(item.path, number % 4 != 0);
        items.push_back(std::move(item));
    }
    return items;
}

/// A complete clean-up by the application's core: status 0 if all items are in the Trash.
int clean(const Place& place, std::vector<zelk::Reclaimable> items) {
    zelk::NativePlatform native(place.home());
    std::promise<std::size_t> cleaned;
    zelk::Cleaner::cleanAll(std::move(items), false, native.platform(),
                            [&](std::vector<zelk::Cleaner::Result> results) {
                                std::size_t failed = 0;
                                for (const auto& result : results)
                                    failed += std::holds_alternative<zelk::Cleaner::Trashed>(result.status) ? 0 : 1;
                                cleaned.set_value(failed);
                            });
    const std::size_t failed = cleaned.get_future().get();
    native.drain(60);
    return failed == 0 ? 0 : 1;
}

using Clock = std::chrono::steady_clock;

/// The duration of an uninterrupted clean-up.
Clock::duration unkilled() {
    const Place place;
    std::vector<zelk::Reclaimable> items = makeItems(place);
    const Clock::time_point begin = Clock::now();
    require(wait(start([&] { return clean(place, std::move(items)); })) == 0, "a cleaning failed");
    return Clock::now() - begin;
}

struct Killed {
    int kills = 0;
    int inTheMiddle = 0;  ///< kills with only some items in the Trash
    int orphans = 0;      ///< info left without content
};

/// The number of items in the Trash at that moment.
std::size_t killOnce(Clock::duration moment, Killed& killed) {
    const Place place;
    std::vector<zelk::Reclaimable> items = makeItems(place);
    const pid_t cleaner = start([&] { return clean(place, std::move(items)); });
    std::this_thread::sleep_for(moment);
    ::kill(cleaner, SIGKILL);
    if (wait(cleaner) == -1) ++killed.kills;

    requireGoodTrash(place, "after a kill");
    const auto found = restorable(place.trash());
    for (int number = 0; number < killItems; ++number) {
        const std::string path = itemOf(place, number);
        const bool inPlace = fs::exists(path) && isWhole(path, path);
        require(inPlace != found.contains(path), path + " is in both places or in none");
    }
    if (!found.empty() && found.size() < killItems) ++killed.inTheMiddle;
    if (fs::exists(place.trash() + "/info"))
        killed.orphans += static_cast<int>(namesIn(place.trash() + "/info").size() - found.size());

    zelk::Reclaimable next;
    next.id = next.path = place.path() + "/next";
    next.rootLength = place.path().size();
    makeItem(next.path, false);
    require(wait(start([&] { return clean(place, {next}); })) == 0, "the next run could not clean");
    requireGoodTrash(place, "after the next run");
    requireNoOrphan(place, "after the next run");
    return found.size();
}

void kill(int kills) {
    Clock::duration whole = unkilled();
    std::mt19937 chance(std::random_device{}());
    Killed killed;
    // The duration varies with the machine's load; most kills should fall within a clean-up.
    for (int tried = 0; killed.kills < kills && tried < 50 * kills; ++tried) {
        std::uniform_int_distribution<Clock::rep> moment(0, whole.count());
        const int before = killed.kills;
        const std::size_t trashed = killOnce(Clock::duration(moment(chance)), killed);
        if (killed.kills == before)
            whole -= whole / 4;
        else if (trashed == 0)
            whole += whole / 8;
    }
    require(killed.kills == kills, "it could not be killed as often as wanted");
    std::printf("%d killed, %d of them in the middle; %d orphans were left and swept\n", killed.kills,
                killed.inTheMiddle, killed.orphans);
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view what = argc > 1 ? argv[1] : "";
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 0;
    if (rounds < 1 || (what != "race" && what != "kill")) {
        std::fprintf(stderr, "usage: trash_rounds race|kill ROUNDS\n");
        return 2;
    }
    if (what == "kill") kill(rounds);
    for (int round = 0; what == "race" && round < rounds; ++round) race();
    std::printf("%s: %d rounds, %d faults\n", argv[1], rounds, faults);
    return faults == 0 ? 0 : 1;
}
