// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace zelk {

/// Information from the application bundle. Absent fields are not specified there.
struct BundleInfo {
    std::optional<QString> name;
    std::optional<QString> version;
    std::optional<QString> build;
};

/// The information of the bundle that runs, or that of the build if there is none.
BundleInfo applicationBundle();

}  // namespace zelk
