// SPDX-License-Identifier: MIT
// The model on a real disk: the next survey counts what a cleaning moved to the Trash, but does not offer it again.
#include <algorithm>
#include <filesystem>
#include <memory>

#include "AppModelFixture.h"
#include "fakes/TestFiles.h"
#include "platform/NativePlatform.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

class TrashAndModel : public testing::Test {
protected:
    TrashAndModel() {
        for (const std::string& folder : {home + "/lab/__pycache__", home + "/shop/node_modules", home + "/Videos"})
            std::filesystem::create_directories(folder);
        fakes::writeFile(home + "/lab/__pycache__/a.pyc", std::string(300'000, 'a'));
        fakes::writeFile(home + "/shop/node_modules/b.js", std::string(200'000, 'b'));
        fakes::writeFile(film, std::string(900'000, 'f'));
        native = std::make_unique<NativePlatform>(home);
        model = std::make_unique<AppModel>(native->platform());
    }
    ~TrashAndModel() override {
        model.reset();
        EXPECT_TRUE(native->drain(60));
    }

    void untilSurveyed(std::size_t surveys) {
        runUntil([&] {
            return model->scanPhase() == AppModel::ScanPhase::finished && model->history().size() == surveys &&
                   !model->trashLoading();
        });
    }
    std::vector<std::string> offered() const {
        std::vector<std::string> paths;
        for (const Reclaimable& item : model->reclaimables()) paths.push_back(item.path);
        std::sort(paths.begin(), paths.end());
        return paths;
    }
    bool lists(const std::string& path) const {
        const std::vector<LargeFile>& files = model->insights().topFiles;
        return std::any_of(files.begin(), files.end(), [&](const LargeFile& file) { return file.path == path; });
    }

    const zoo::TempFolder temp;
    const std::string home = temp / "home";
    const std::string film = home + "/Videos/film.mov";
    const std::string trashed = home + "/.local/share/Trash/files";
    std::unique_ptr<NativePlatform> native;
    std::unique_ptr<AppModel> model;
};

TEST_F(TrashAndModel, trashedItemsAreCountedButNotOfferedAgain) {
    model->startScan();
    untilSurveyed(1);
    ASSERT_EQ(offered(), (std::vector{home + "/lab/__pycache__", home + "/shop/node_modules"}));
    ASSERT_TRUE(lists(film));
    const std::int64_t videos = model->insights().typeTotals[FileType::video].bytes;
    const std::int64_t all = model->root()->size;

    model->trashLargeFile(film);
    runUntil([&] { return !lists(film); });
    model->cleanSafeCaches();
    untilSurveyed(2);
    ASSERT_TRUE(std::filesystem::exists(trashed + "/film.mov"));
    ASSERT_TRUE(std::filesystem::exists(trashed + "/__pycache__/a.pyc"));

    EXPECT_EQ(offered(), std::vector{home + "/shop/node_modules"});
    EXPECT_FALSE(lists(trashed + "/film.mov"));
    EXPECT_FALSE(lists(trashed + "/__pycache__/a.pyc"));
    EXPECT_TRUE(lists(home + "/shop/node_modules/b.js"));

    EXPECT_GE(model->root()->size, all);
    EXPECT_EQ(model->insights().typeTotals[FileType::video].bytes, videos);
    const NodeRef folder = folderAt(model->root(), trashed);
    ASSERT_TRUE(folder);
    EXPECT_GE(folder->size, 1'200'000);
    EXPECT_EQ(model->trashBytes(), folder->size);
}

TEST_F(TrashAndModel, offersDesktopCaches) {
    std::filesystem::create_directories(home + "/.cache/yarn/v6");
    std::filesystem::create_directories(home + "/.config/Code/GPUCache");
    model->startScan();
    untilSurveyed(1);
    EXPECT_EQ(offered(), (std::vector{home + "/.cache/yarn", home + "/.config/Code/GPUCache", home + "/lab/__pycache__",
                                      home + "/shop/node_modules"}));
}

}  // namespace
}  // namespace zelk
