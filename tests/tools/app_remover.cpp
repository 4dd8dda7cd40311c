// SPDX-License-Identifier: MIT
// Lists and removes the applications of this machine without a window; tools/apps_check compares what it says with what
// it does.
//
//   app_remover list          a line for each: kind, path, name, obstacle, and what the distribution calls it
//   app_remover sheet PATH    what the sheet would list, a path a line, and before that the obstacle if there is one
//   app_remover remove PATH   removes exactly that; status 0 if the application is gone
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "platform/NativePlatform.h"
#include "reclaim/Leftovers.h"
#include "system/apps/AppRemoval.h"
#include "system/apps/ApplicationList.h"

namespace {

int numberOf(zelk::AppObstacle::Reason reason) {
    return static_cast<int>(reason);
}

int remove(const zelk::Platform& platform, const zelk::AppEntry& app) {
    const std::vector<zelk::Leftover> leftovers = zelk::Leftovers(platform).of(app);
    const zelk::AppRemoval removal = zelk::removeApplication(platform, app);
    std::printf("outcome %d %s\n", static_cast<int>(removal.outcome), removal.words.c_str());
    if (removal.outcome != zelk::AppRemoval::Outcome::gone) return 1;
    for (const zelk::Leftover& one : leftovers)
        if (const zelk::Failure failure = zelk::trashLeftover(platform, one.url).failure)
            std::printf("stays %s: %s\n", one.url.c_str(), failure->c_str());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view verb = argc > 1 ? argv[1] : "";
    const std::string path = argc > 2 ? argv[2] : "";
    zelk::NativePlatform native;
    const zelk::Platform& platform = native.platform();
    for (const zelk::AppEntry& app : zelk::listApplications(platform)) {
        if (verb == "list")
            std::printf("%d\t%s\t%s\t%d\t%s\n", static_cast<int>(app.kind), app.url.c_str(), app.name.c_str(),
                        numberOf(app.obstacle.reason), app.package.c_str());
        if (app.url != path) continue;
        if (verb == "remove") return remove(platform, app);
        if (verb != "sheet") continue;
        if (const int obstacle = numberOf(zelk::obstacleNow(platform, app).reason))
            std::printf("obstacle %d\n", obstacle);
        for (const zelk::Leftover& one : zelk::Leftovers(platform).of(app)) std::printf("%s\n", one.url.c_str());
    }
    return verb == "remove" ? 2 : 0;
}
