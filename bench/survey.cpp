// SPDX-License-Identifier: MIT
// survey [--home DIR] ROOT...: runs one survey with the real engine and classifier and prints it as one JSON object.
// Sizes are allocated bytes, dates seconds since 1970, phases seconds. --home is the home folder for the classifier;
// ZELK_WORKERS sets the number of threads.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "JsonWriter.h"
#include "platform/NativePlatform.h"
#include "reclaim/ReclaimClassifier.h"
#include "scan/ScanEngine.h"

namespace {

using namespace zelk;

struct Survey {
    NodeRef root;
    ScanStats stats;
    ScanInsights insights;
    std::vector<Reclaimable> reclaimables;
    ScanPhases phases;
    double classify = 0;  ///< seconds
};

Survey surveyOf(Platform& platform, std::vector<std::string> roots) {
    Survey survey;
    const auto queue = std::make_shared<UpdateQueue>();
    survey.phases = ScanEngine(platform.directories, platform.clock, platform.locations.trashPlaces())
                        .runHere(queue, std::move(roots));
    for (ScanUpdate& update : queue->takeAll().updates) {
        if (auto* const insights = std::get_if<update::Insights>(&update)) {
            survey.insights = std::move(insights->insights);
        } else if (auto* const finished = std::get_if<update::Finished>(&update)) {
            survey.root = std::move(finished->root);
            survey.stats = std::move(finished->stats);
        }
    }
    const auto start = std::chrono::steady_clock::now();
    ReclaimClassifier(platform.files, ReclaimPlaces::of(platform.locations))
        .collect(*survey.root, platform.locations.home(), survey.reclaimables);
    survey.classify = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return survey;
}

void write(bench::JsonWriter& json, const ScanStats& stats) {
    bool escaped = false;
    for (const std::string& root : stats.roots) escaped = escaped || !bench::isUtf8(root);
    json.key("stats").open('{');
    json.key("filesScanned").number(stats.filesScanned).key("dirsScanned").number(stats.dirsScanned);
    json.key("totalBytes").number(stats.totalBytes).key("blockedPaths").number(stats.blockedPaths);
    json.key("duration").number(stats.duration).key("roots").open('[');
    for (const std::string& root : stats.roots) json.text(escaped ? bench::percentEscaped(root) : root);
    json.close(']');
    if (escaped) json.key("rootsEscaped").boolean(true);
    json.key("wasCancelled").boolean(stats.wasCancelled).close('}');
}

void write(bench::JsonWriter& json, const TypeTotals& totals) {
    json.key("types").open('{');
    for (const FileType type : allFileTypes) {
        if (!totals.contains(type)) continue;
        json.key(rawValue(type)).open('{').key("bytes").number(totals[type].bytes);
        json.key("count").number(totals[type].count).close('}');
    }
    json.close('}');
}

void write(bench::JsonWriter& json, std::string_view name, const std::vector<LargeFile>& files) {
    json.key(name).open('[');
    for (const LargeFile& file : files) {
        json.open('{').path(file.path).key("size").number(file.size).key("modified").number(file.modified);
        json.key("type").text(rawValue(file.type)).close('}');
    }
    json.close(']');
}

void write(bench::JsonWriter& json, const std::vector<Reclaimable>& items) {
    json.key("reclaimables").open('[');
    for (const Reclaimable& item : items) {
        json.open('{').path(item.path).key("size").number(static_cast<std::int64_t>(item.size));
        json.key("categoryID").text(item.categoryID).key("safety").text(rawValue(item.safety));
        json.key("method").text(methodSummary(item.method)).key("lastModified").number(item.lastModified).close('}');
    }
    json.close(']');
}

std::string jsonOf(const Survey& survey) {
    bench::JsonWriter json;
    json.open('{');
    write(json, survey.stats);
    write(json, survey.insights.typeTotals);
    write(json, "topFiles", survey.insights.topFiles);
    write(json, "diskImages", survey.insights.diskImages);
    write(json, survey.reclaimables);
    json.key("phases").open('{').key("walk").number(survey.phases.walk).key("rollUp").number(survey.phases.rollUp);
    json.key("classify").number(survey.classify).close('}').close('}');
    return json.json();
}

}  // namespace

int main(int count, char** words) {
    std::string home;
    std::vector<std::string> roots(words + 1, words + count);
    for (std::size_t at = 0; at + 1 < roots.size(); ++at) {
        if (roots[at] != "--home") continue;
        home = roots[at + 1];
        while (home.size() > 1 && home.ends_with('/')) home.pop_back();
        roots.erase(roots.begin() + static_cast<std::ptrdiff_t>(at),
                    roots.begin() + static_cast<std::ptrdiff_t>(at) + 2);
        break;
    }
    if (roots.empty() || roots.back() == "--home") {
        std::fprintf(stderr, "usage: survey [--home DIR] ROOT...\n");
        return 2;
    }
    NativePlatform native(home);
    const std::string json = jsonOf(surveyOf(native.platform(), std::move(roots)));
    const bool printed = std::fwrite(json.data(), 1, json.size(), stdout) == json.size() && std::puts("") >= 0;
    const int status = std::fflush(stdout) == 0 && printed ? 0 : 1;
    if (!native.drain(1.0)) std::_Exit(status);  // a thread still uses the services: do not destroy them
    return status;
}
