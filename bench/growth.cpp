// SPDX-License-Identifier: MIT
// growth FOLDERS: surveys a simulated tree of so many folders, with four files in each, and prints how long the walk
// and the roll-up took and how many bytes the finished tree takes per folder, as a line of JSON. The listings are
// computed where they are asked for, so that only the walk itself is measured, and the tree may be larger than any that
// is at hand. The time is the median of several surveys after a first one, which alone starts the process: in a small
// tree that would take as long as the folders.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "Median.h"
#include "platform/Text.h"
#include "platform/posix/PosixClock.h"
#include "scan/ScanEngine.h"

namespace {

using zelk::DirectoryReader;
using zelk::DirEntry;

constexpr std::uint64_t filesInEach = 4;
constexpr std::uint64_t subfoldersInEach =
    8;  // ten million folders are then nested eight levels deep, like those of a home
constexpr std::int64_t foldersInAll = 1'000'000;  // of all surveys, as far as three have no more
constexpr std::int32_t device = 1;
constexpr std::uint32_t regularType = 1;

/// A tree in which every folder has eight subfolders until the last. They are numbered level by level, so that a
/// folder's number tells those of its parent and its subfolders.
class SimulatedTree : public zelk::DirectoryService {
public:
    explicit SimulatedTree(std::uint64_t folders) : folders_(folders) {}

    std::optional<zelk::RootStatus> status(const std::string&) override { return zelk::RootStatus{device, 0}; }
    std::shared_ptr<const zelk::DirectoryRoot> openRoot(const std::string&) override {
        return std::make_shared<zelk::DirectoryRoot>();
    }
    std::unique_ptr<DirectoryReader> makeReader() override { return std::make_unique<Reader>(folders_); }

private:
    class Reader : public DirectoryReader {
    public:
        explicit Reader(std::uint64_t folders) : folders_(folders) {
            for (std::uint64_t i = 0; i < subfoldersInEach; ++i) names_.push_back("folder_" + std::to_string(i));
            for (std::uint64_t i = 0; i < filesInEach; ++i) names_.push_back("picture_" + std::to_string(i) + ".jpeg");
        }

        const Entries* open(const zelk::DirectoryRoot&, const std::string& below) override {
            folder_ = 0;
            for (std::string_view rest = below; !rest.empty();) {
                const std::size_t slash = rest.find('/');
                enter(rest.substr(0, slash));
                rest.remove_prefix(slash == std::string_view::npos ? rest.size() : slash + 1);
            }
            return listing();
        }

        const Entries* descend(std::string_view name) override {
            enter(name);
            return listing();
        }

        bool ascend() override {
            folder_ = (folder_ - 1) / subfoldersInEach;
            return true;
        }

    private:
        void enter(std::string_view name) {
            folder_ = folder_ * subfoldersInEach + 1 + static_cast<std::uint64_t>(name.back() - '0');
        }

        const Entries* listing() {
            entries_.clear();
            for (std::uint64_t i = 0; i < subfoldersInEach; ++i) {
                const std::uint64_t number = folder_ * subfoldersInEach + 1 + i;
                if (number >= folders_) break;
                entries_.push_back({names_[i], zelk::directoryObjectType, number, 0, 0, device, 0});
            }
            for (std::uint64_t i = 0; i < filesInEach; ++i) {
                const std::uint64_t number = folders_ + folder_ * filesInEach + i;
                entries_.push_back({names_[subfoldersInEach + i], regularType, number, 1, 4096 * (1 + i), device, 0});
            }
            return &entries_;
        }

        const std::uint64_t folders_;
        std::uint64_t folder_ = 0;
        std::vector<std::string> names_;
        Entries entries_;
    };

    const std::uint64_t folders_;
};

/// The tree of a whole scan of `directories`.
struct Scan {
    zelk::NodeRef tree;
    std::int64_t folders = 0;
    double seconds = 0;  ///< of the walk and the roll-up
};

Scan scanned(zelk::DirectoryService& directories) {
    zelk::PosixClock clock;
    const auto queue = std::make_shared<zelk::UpdateQueue>();
    const zelk::ScanPhases phases = zelk::ScanEngine(directories, clock).runHere(queue, {"/simulated"});
    Scan scan{nullptr, 0, phases.walk + phases.rollUp};
    for (zelk::ScanUpdate& update : queue->takeAll().updates) {
        auto* const finished = std::get_if<zelk::update::Finished>(&update);
        if (finished == nullptr) continue;
        scan.tree = std::move(finished->root);
        scan.folders = finished->stats.dirsScanned;
    }
    return scan;
}

}  // namespace

int main(int count, char** words) {
    const std::optional<std::int64_t> folders =
        count == 2 ? zelk::parseNumber<std::int64_t>(words[1]) : std::optional<std::int64_t>();
    if (!folders || *folders < 1) {
        std::fprintf(stderr, "usage: growth FOLDERS\n");
        return 2;
    }
    SimulatedTree simulated(static_cast<std::uint64_t>(*folders));
    Scan scan = scanned(simulated);
    std::vector<double> seconds;
    for (std::int64_t left = std::max<std::int64_t>(3, foldersInAll / *folders); left > 0 && scan.tree; --left) {
        scan = {};  // is given back before the next one begins
        scan = scanned(simulated);
        seconds.push_back(scan.seconds);
    }
    if (!scan.tree || scan.folders != *folders) {
        std::fprintf(stderr, "growth: %lld folders of %lld were found\n", static_cast<long long>(scan.folders),
                     static_cast<long long>(*folders));
        return 1;
    }
    const auto held = static_cast<double>(scan.tree->arena().usedBytes());
    std::printf("{\"folders\":%lld,\"seconds\":%.6f,\"bytesPerFolder\":%.1f}\n", static_cast<long long>(scan.folders),
                zelk::bench::medianOf(seconds), held / static_cast<double>(scan.folders));
    return 0;
}
