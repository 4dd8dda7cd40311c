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

/// The places of this machine that decide what is an item.
struct ReclaimPlaces {
    /// If present, the Linux locations are known in addition to those of macOS. Bytes, without a trailing slash.
    std::optional<std::string> xdgDataHome;
    /// Nothing inside is an item, and nothing inside is marked.
    TrashPlaces trash;

    static ReclaimPlaces of(Locations& locations);
};

/// The row of the catalogue that a classifier has marked the node with; null if there is none.
const ReclaimCategory* reclaimCategoryOf(const FSNode& node);

/// Turns a finished tree into the list of reclaimable items. An ordered chain of tests looks at each node and the home
/// path; the first match wins. There is no minimum size and no age limit: those belong to the review. The only question
/// to the live file system is whether there is a Cargo.toml beside a folder called "target". Usable from any thread.
class ReclaimClassifier {
public:
    struct Match {
        const ReclaimCategory* category = nullptr;
        ReclaimMethod method;
        TimePoint ageDate = 0;  ///< the date from which the item's age counts
    };

    /// The default knows the locations of macOS and no Trash.
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
