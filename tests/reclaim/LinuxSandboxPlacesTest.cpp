// SPDX-License-Identifier: MIT
// What a survey in a sandbox of Flatpak offers: what is the user's, and nothing that is the sandbox's.
#include <gmock/gmock.h>

#include "fakes/Environment.h"
#include "fakes/FakeFileManager.h"
#include "fakes/FakeSandbox.h"
#include "platform/Text.h"
#include "platform/linux/files/LinuxLocations.h"
#include "reclaim/ReclaimClassifier.h"

namespace zelk {
namespace {

using fakes::EnvironmentVariable;
using testing::ElementsAre;
using testing::IsEmpty;

class SandboxPlaces : public testing::Test {
protected:
    /// What is offered by a survey from the root that finds a folder at this path.
    std::vector<std::string> offered(const std::string& path) {
        const EnvironmentVariable home("HOME", place.home);
        const EnvironmentVariable data("XDG_DATA_HOME", place.own + "/data");
        LinuxLocations locations({}, place.sandbox());
        const NodeRef top = FSNode::make("", 0);
        FSNode* at = &top->append(place.root, 0);
        std::string_view below = std::string_view(path).substr(place.root.size() + 1);
        while (!below.empty()) at = &at->append(takeUntil(below, '/'), 0);
        fakes::FakeFileManager files;
        std::vector<Reclaimable> items;
        ReclaimClassifier(files, ReclaimPlaces::of(locations)).collect(*top, place.home, items);
        std::vector<std::string> paths;
        for (const Reclaimable& item : items) paths.push_back(item.path);
        return paths;
    }

    fakes::FakeSandbox place;
    const EnvironmentVariable hostData{"HOST_XDG_DATA_HOME", std::nullopt};
};

TEST_F(SandboxPlaces, offerWhatIsTheUsers) {
    for (const std::string& path :
         {place.home + "/projects/web/node_modules", place.home + "/.cache/yarn",
          place.home + "/.local/share/pnpm/store", place.home + "/.var/app/org.other.App/.cache/x/Cache",
          place.root + "/run/media/me/disk/node_modules"})
        EXPECT_THAT(offered(path), ElementsAre(path));
}

TEST_F(SandboxPlaces, offerNothingOfTheSandboxsOwn) {
    for (const std::string& path :
         {place.own + "/node_modules", place.own + "/.cache/x/Cache", place.root + "/usr/lib/node_modules",
          place.root + "/var/cache/node_modules", place.root + "/app/lib/node_modules",
          place.root + "/run/host/usr/lib/node_modules", place.root + "/tmp/node_modules"})
        EXPECT_THAT(offered(path), IsEmpty()) << path;
}

// As when somebody chooses it.
TEST_F(SandboxPlaces, offerNothingOfTheSandboxsOwnWhereTheSurveyBegins) {
    EnvironmentVariable home("HOME", place.home);
    LinuxLocations locations({}, place.sandbox());
    const NodeRef top = FSNode::make("", 0);
    top->append(place.own + "/data", 0).append("node_modules", 0);
    fakes::FakeFileManager files;
    std::vector<Reclaimable> items;
    ReclaimClassifier(files, ReclaimPlaces::of(locations)).collect(*top, place.home, items);
    EXPECT_THAT(items, IsEmpty());
}

TEST_F(SandboxPlaces, offerTheStoreWhereTheHostHasIt) {
    const EnvironmentVariable named("HOST_XDG_DATA_HOME", place.home + "/data");
    EXPECT_THAT(offered(place.home + "/data/pnpm/store"), ElementsAre(place.home + "/data/pnpm/store"));
    EXPECT_THAT(offered(place.own + "/data/pnpm/store"), IsEmpty());
}

TEST_F(SandboxPlaces, offerThoseFoldersWithoutASandbox) {
    place.leave();
    EXPECT_THAT(offered(place.own + "/node_modules"), ElementsAre(place.own + "/node_modules"));
}

}  // namespace
}  // namespace zelk
