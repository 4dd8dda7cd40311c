// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace zelk {

/// What the application's bundle says of it. Whatever it does not say is absent.
struct BundleInfo {
    std::optional<QString> name;
    std::optional<QString> version;
    std::optional<QString> build;
};

/// Of the bundle that this runs from; without one, of the build.
BundleInfo applicationBundle();

}  // namespace zelk
