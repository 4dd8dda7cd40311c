// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "HouseRules.h"

namespace zelk::house {

/// Ids of QML objects that have the name of a property of some object in the same file: one that the object declares,
/// or that its type has, whether the type comes from these sources (QML files, C++ headers) or from Qt. Inside such an
/// object the interpreter takes the property where the compiler takes the id, so the meaning of a binding would hang on
/// whether it was compiled. A type that nothing describes is a violation too, since its properties are unknown.
/// `descriptions` are the texts of Qt's .qmltypes files.
std::vector<Violation> checkIds(const std::vector<SourceFile>& sources, const std::vector<std::string>& descriptions);

/// Casts to types that a QML file of ours defines: in a second engine of the same process they give null (seen with
/// Qt 6.8), where those to the types of C++ hold.
std::vector<Violation> checkCasts(const std::vector<SourceFile>& sources);

}  // namespace zelk::house
