// SPDX-License-Identifier: MIT
// The model on the real system: surveys a real tree a hundred times and cancels at random moments.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include "AppModelFixture.h"
#include "platform/NativePlatform.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;

/// A home folder of a few thousand entries, removed with the object.
class TemporaryHome {
public:
    TemporaryHome() {
        std::string pattern = (fs::temp_directory_path() / "zelk-stress-XXXXXX").string();
        path = ::mkdtemp(pattern.data());
        for (int outer = 0; outer < 20; ++outer)
            for (int inner = 0; inner < 20; ++inner) {
                const fs::path folder = path / std::to_string(outer) / "node_modules" / std::to_string(inner) / "a/b";
                fs::create_directories(folder);
                std::ofstream(folder / "file") << "text";
            }
    }
    ~TemporaryHome() { fs::remove_all(path); }
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;

    fs::path path;
};

#ifdef __linux__
bool isScanThreadRunning() {
    for (const fs::directory_entry& thread : fs::directory_iterator("/proc/self/task")) {
        std::string name;
        std::getline(std::ifstream(thread.path() / "comm"), name);
        if (name.starts_with("zelk.scan")) return true;
    }
    return false;
}
#endif

TEST(AppModelStress, cancelAtHundredRandomMomentsLeavesNothing) {
    using Clock = std::chrono::steady_clock;
    const TemporaryHome home;
    NativePlatform native(home.path.string());
    AppModel model(native.platform());

    const Clock::time_point start = Clock::now();
    model.startScan();
    runUntil([&] { return model.scanPhase() == AppModel::ScanPhase::finished; });
    const std::chrono::duration<double> whole = Clock::now() - start;
    ASSERT_EQ(model.stats()->filesScanned, 400);
    const NodeRef tree = model.root();
    std::size_t finished = 1;

    std::mt19937 random(20'240);
    std::uniform_real_distribution<double> share(0, 1.1);
    for (int round = 0; round < 100; ++round) {
        const Clock::time_point cancelAt =
            Clock::now() + std::chrono::duration_cast<Clock::duration>(whole * share(random));
        const NodeRef before = model.root();
        model.startScan();
        while (Clock::now() < cancelAt && model.scanPhase() == AppModel::ScanPhase::scanning)
            QCoreApplication::processEvents();
        const bool came = model.scanPhase() == AppModel::ScanPhase::finished;
        finished += came ? 1 : 0;
        model.cancelScan();
        EXPECT_EQ(model.scanPhase(), AppModel::ScanPhase::idle);
        EXPECT_EQ(model.root() == before, !came);
        EXPECT_EQ(model.reclaimables().empty(), !came);
        EXPECT_EQ(model.insights().topFiles.empty(), !came);
        EXPECT_EQ(model.history().size(), std::min<std::size_t>(finished, SurveyHistory::maximumRecords));
    }

    // The last scan may report a record that has to be withdrawn, which takes another task.
    for (int turn = 0; turn < 2; ++turn) {
        while (!native.drain(1)) {
        }
        runWhatIsThere();
    }
    EXPECT_EQ(model.scanPhase(), AppModel::ScanPhase::idle);
    EXPECT_EQ(SurveyHistory(native.platform().files, native.platform().locations).load().size(),
              std::min<std::size_t>(finished, SurveyHistory::maximumRecords));
#ifdef __linux__
    // The kernel still lists a thread for a moment after it has ended.
    while (isScanThreadRunning()) std::this_thread::yield();
#endif
}

TEST(AppModelStress, modelMayBeDestroyedAtAnyMoment) {
    const TemporaryHome home;
    NativePlatform native(home.path.string());
    std::mt19937 random(7);
    std::uniform_int_distribution<int> turns(0, 40);
    for (int round = 0; round < 40; ++round) {
        AppModel model(native.platform());
        model.startScan();
        model.refreshTrash();
        for (int turn = turns(random); turn > 0; --turn) {
            QCoreApplication::processEvents();
            std::this_thread::yield();
        }
    }
    while (!native.drain(1)) {
    }
}

}  // namespace
}  // namespace zelk
