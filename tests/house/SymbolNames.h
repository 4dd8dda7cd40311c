// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "HouseRules.h"

namespace zelk::house {

/// A symbol that a source names in a text, and the line where it does.
struct SymbolUse {
    std::string path;
    int line;
    std::string name;
};

/// The symbols that the sources of the screens and their models name: texts given to anything called symbol or icon
/// (a property, a field by name, an argument, what a function of that name returns), the name of a SymbolItem, texts
/// that stand in a table at the place of such a field, and texts with a dot that begin as symbols do ("doc.text").
std::vector<SymbolUse> symbolsNamedIn(const std::vector<SourceFile>& sources);

}  // namespace zelk::house
