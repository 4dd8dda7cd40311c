// SPDX-License-Identifier: MIT
// The rules of the house, held against every source of this repository.
#include <gmock/gmock.h>

#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <algorithm>
#include <filesystem>

#include "HouseRules.h"
#include "QmlNames.h"
#include "SymbolNames.h"

namespace zelk::house {
namespace {

const std::vector<SourceFile>& sources() {
    static const std::vector<SourceFile> all = readSources(ZELK_SOURCE_DIR);
    return all;
}

std::string listed(const std::vector<Violation>& violations) {
    std::string text;
    for (const Violation& violation : violations) {
        text += "\n" + violation.path + ":" + std::to_string(violation.line) + ": " + violation.message;
    }
    return text;
}

/// What `rule` finds in the whole repository, one line each.
std::string broken(std::vector<Violation> (*rule)(const SourceFile&)) {
    std::vector<Violation> all;
    for (const SourceFile& file : sources()) {
        const auto found = rule(file);
        all.insert(all.end(), found.begin(), found.end());
    }
    return listed(all);
}

TEST(House, isReadFromEveryCorner) {
    for (const std::string path :
         {"run", "test", ".ci/run", "scripts/packages.sh", "CMakeLists.txt", "src/CMakeLists.txt",
          "src/platform/Platform.h", "tests/house/HouseTest.cpp", ".github/workflows/ci.yml"}) {
        EXPECT_TRUE(std::ranges::any_of(sources(), [&](const auto& file) { return file.path == path; })) << path;
    }
}

TEST(House, layersIncludeOnlyWhatStandsToTheirLeft) {
    EXPECT_EQ(broken(checkLayers), "");
}

TEST(House, algorithmsKnowNoQtAndOnlyTheInterfaceKnowsQtQuick) {
    EXPECT_EQ(broken(checkQt), "");
}

TEST(House, onlyTheOutermostProgramsMakeThePlatform) {
    EXPECT_EQ(broken(checkCompositionRoot), "");
}

TEST(House, everySourceHasItsLicenceAndIsShort) {
    EXPECT_EQ(broken(checkForm), "");
}

TEST(House, noIdIsShadowedByAProperty) {
    std::vector<std::string> descriptions;
    for (QDirIterator at(QLibraryInfo::path(QLibraryInfo::QmlImportsPath), {QStringLiteral("*.qmltypes")}, QDir::Files,
                         QDirIterator::Subdirectories);
         at.hasNext();) {
        QFile file(at.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        descriptions.push_back(file.readAll().toStdString());
    }
    EXPECT_EQ(listed(checkIds(sources(), descriptions)), "");
}

TEST(House, noCastIsToAQmlTypeOfOurs) {
    EXPECT_EQ(listed(checkCasts(sources())), "");
}

TEST(House, everySymbolThatIsNamedIsDrawn) {
    const auto uses = symbolsNamedIn(sources());
    EXPECT_TRUE(std::ranges::any_of(uses, [](const auto& use) { return use.name == "sparkles"; }));
    const std::filesystem::path drawings = std::filesystem::path(ZELK_SOURCE_DIR) / "src/ui/theme/symbols";
    std::vector<Violation> missing;
    for (const SymbolUse& use : uses) {
        if (std::filesystem::exists(drawings / (use.name + ".svg"))) continue;
        missing.push_back({use.path, use.line, "src/ui/theme/symbols has no " + use.name + ".svg"});
    }
    EXPECT_EQ(listed(missing), "");
}

}  // namespace
}  // namespace zelk::house
