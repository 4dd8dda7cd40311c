// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/TrashPlaces.h"
#include "reclaim/ReclaimCatalogue.h"
#include "scan/FSNode.h"

namespace zelk {

class FileManager;
class Locations;

/// What of the machine decides where things lie that can be had again.
struct ReclaimPlaces {
    /// With one, the places that Linux has for what macOS keeps elsewhere are known beside macOS's own. Bytes, without
    /// a slash at its end.
    std::optional<std::string> xdgDataHome;
    /// What lies in it is no item, and is not marked.
    TrashPlaces trash;

    static ReclaimPlaces of(Locations& locations);
};

/// Turns a finished tree into the list of what can be reclaimed: one ordered chain of tests on a node and the home
/// path, the first hit wins. No minimum size and no age limit: those belong to the review. Of the live file system it
/// asks one thing, whether a Cargo.toml stands beside a folder called "target". Usable from any thread.
class ReclaimClassifier {
public:
    struct Match {
        const ReclaimCategory* category = nullptr;
        ReclaimMethod method;
        TimePoint ageDate = 0;  ///< the date from which the item's age counts
    };

    /// Without `known` the places of macOS, and nothing is known as thrown away.
    explicit ReclaimClassifier(FileManager& files, ReclaimPlaces known = {})
        : files_(files), places_(std::move(known)) {}

    std::optional<Match> classify(const FSNode& node, const std::string& home) const;

    /// Walks the tree in pre-order, appends an item per match and marks the node with its category. Any depth.
    void collect(FSNode& top, const std::string& home, std::vector<Reclaimable>& items) const;

private:
    FileManager& files_;
    ReclaimPlaces places_;
};

}  // namespace zelk
