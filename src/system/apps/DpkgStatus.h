// SPDX-License-Identifier: MIT
// What the tools of Debian print about packages. Pure functions over any bytes.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// One of the packages that a dependency is content with.
struct PackageChoice {
    std::string name;
    bool anyVersion = true;
};

struct DpkgPackage {
    std::string name;
    std::uint64_t bytes = 0;    ///< what it takes when installed, as its maker says; 0 if unknown
    bool isForSystem = false;   ///< essential, protected, or of a priority that belongs to a basic system
    std::size_t instances = 1;  ///< one for each architecture that it is installed for
    std::vector<std::string> provides;
    std::vector<std::vector<PackageChoice>> needs;  ///< one choice of each has to be there
};

/// The argument of `dpkg-query -W -f` whose output parseDpkgPackages() reads.
extern const char* const dpkgFormat;

/// The packages that are there, by name. Skips those that were removed and lines of any other form.
std::map<std::string, DpkgPackage> parseDpkgPackages(std::string_view output);

/// The packages that would lose something they need if `name` went, in order. In doubt a package does need it: a choice
/// that asks for a version counts for nothing but the package that may go.
std::vector<std::string> packagesThatNeed(const std::map<std::string, DpkgPackage>& packages, const std::string& name);

/// The owners of each path that `dpkg-query -S` prints, without their architectures. Skips lines of any other form.
std::map<std::string, std::set<std::string>> parseDpkgOwners(std::string_view output);

/// Packages, in the order in which apt-get would deal with them.
struct AptChanges {
    std::vector<std::string> removed;  ///< with or without their settings
    std::vector<std::string> installed;
};

/// What `apt-get -s remove` would do.
AptChanges parseAptChanges(std::string_view output);

/// Whether the word is the name of a package, and so no pattern and no option.
bool isPackageName(std::string_view word);

}  // namespace zelk
