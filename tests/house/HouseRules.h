// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelk::house {

/// A file of the repository: its path from the root, with "/", and its whole text.
struct SourceFile {
    std::string path;
    std::string text;
};

/// One broken rule: `path:line: what is wrong`. Line 0 speaks of the whole file.
struct Violation {
    std::string path;
    int line;
    std::string message;
};

struct Include {
    std::string target;
    int line;
};

/// Whether the character may stand in a name of C++ or QML.
bool isWord(char c);

/// `text` without comments; line breaks stay, so that line numbers do too. String literals are kept.
std::string withoutComments(std::string_view text);

/// What the file includes, in order. A target inside src/ is given from there ("scan/FSNode.h"), whether it was written
/// so or relative to the file; anything else as it was written.
std::vector<Include> includesOf(const SourceFile& file);

/// Includes that point to the right in platform <- scan <- reclaim <- system <- state <- ui <- app, or within ui/ in
/// theme <- controls <- charts <- screens <- shell; between cli/ and ui/ or app/, beside which it stands; into one
/// system's folder from outside platform/ and app/, or from one system's folder into the other's; between admin/ and
/// anything else of the house.
std::vector<Violation> checkLayers(const SourceFile& file);

/// Qt in a file that has to do without, directly or through a header of the house that may have it; Qt Quick elsewhere
/// than in ui/ and app/.
std::vector<Violation> checkQt(const SourceFile& file);

/// A class of the composition root named elsewhere than in app/, bench/, tools/ and tests/ (platform/ defines it);
/// cli/main.cpp may name the one that knows no desktop.
std::vector<Violation> checkCompositionRoot(const SourceFile& file);

/// The licence line missing, or the file too long: 500 lines, 300 for QML, 100 for the main.cpp of app/ and cli/.
std::vector<Violation> checkForm(const SourceFile& file);

/// Every source of the repository below `root`: the code, its build files and its scripts.
std::vector<SourceFile> readSources(const std::string& root);

}  // namespace zelk::house
