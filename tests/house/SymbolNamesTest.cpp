// SPDX-License-Identifier: MIT
#include "SymbolNames.h"

#include <gmock/gmock.h>

namespace zelk::house {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::vector<std::string> namedIn(const std::string& path, const std::string& text) {
    std::vector<std::string> names;
    for (const SymbolUse& use : symbolsNamedIn({{path, text}})) names.push_back(use.name);
    return names;
}

TEST(SymbolNames, areThePropertiesOfViews) {
    EXPECT_THAT(namedIn("src/ui/a/A.qml", "Button {\n symbol: \"plus\"\n text: \"name\"\n}\n"), ElementsAre("plus"));
    EXPECT_THAT(namedIn("src/ui/a/A.qml", "B {\n symbolName: a.grew ? \"up\" : \"down\"\n mode: \"x\"\n}\n"),
                UnorderedElementsAre("up", "down"));
    EXPECT_THAT(namedIn("src/ui/a/A.qml", "SymbolItem {\n Item { name: \"no\" }\n name: \"scope\"\n}\nname: \"no\"\n"),
                ElementsAre("scope"));
    EXPECT_THAT(namedIn("src/ui/a/A.qml", "visible: row.symbol !== \"tray\"\n"), IsEmpty());
}

TEST(SymbolNames, areFieldsArgumentsAndWhatFunctionsGiveBack) {
    EXPECT_THAT(namedIn("src/ui/a/A.cpp", "face.symbol = QStringLiteral(\"scope\"); x = \"no\";"),
                ElementsAre("scope"));
    EXPECT_THAT(namedIn("src/ui/a/A.cpp", "Face{.symbol = \"scope\", .text = \"no\"};"), ElementsAre("scope"));
    EXPECT_THAT(namedIn("src/ui/a/A.cpp", "tintedSymbol(QStringLiteral(\"scope\"), red); f(\"no\");"),
                ElementsAre("scope"));
    EXPECT_THAT(namedIn("src/state/Screen.cpp",
                        "QString symbolOf(Screen s) {\n if (raw(s) == \"no\") return \"film\";\n return \"photo\";\n}"),
                UnorderedElementsAre("film", "photo"));
    EXPECT_THAT(namedIn("src/ui/a/A.h", "QString symbol() const { return a ? \"film\" : \"photo\"; }"),
                UnorderedElementsAre("film", "photo"));
    EXPECT_THAT(namedIn("src/ui/a/A.h", "QString symbol{\"film\"};"), ElementsAre("film"));
}

TEST(SymbolNames, areTheCellsOfTables) {
    const std::string record = "struct Row {\n int id;\n QString symbol;\n QString label;\n bool wide = false;\n};\n";
    EXPECT_THAT(namedIn("src/ui/a/A.cpp", record + "Row rows[] = {{1, QStringLiteral(\"film\"), tr(\"no\")},"
                                                   "{2, \"photo\", \"no\", true}, {3, \"x\"}};"),
                UnorderedElementsAre("film", "photo"));
    EXPECT_THAT(namedIn("src/ui/a/A.cpp", record + "return {{a, b}, {symbolRole, \"symbol\"}, {c, d}};"), IsEmpty());
    std::vector<std::string> names;
    for (const SymbolUse& use : symbolsNamedIn({{"src/ui/a/A.h", record},
                                                {"src/ui/a/A.cpp", "\nreturn {{1, \"film\", \"no\"}};"},
                                                {"src/ui/a/B.cpp", "return {{1, \"other\", \"no\"}};"}})) {
        names.push_back(use.path + ":" + std::to_string(use.line) + ":" + use.name);
    }
    EXPECT_THAT(names, ElementsAre("src/ui/a/A.cpp:2:film"));
}

TEST(SymbolNames, areDottedTextsThatBeginAsSymbolsDo) {
    EXPECT_THAT(namedIn("src/ui/a/A.cpp", "push(\"arrow.up.right\", \"history.json\", \"com.docker\", \"doc\");"),
                ElementsAre("arrow.up.right"));
    EXPECT_THAT(namedIn("src/platform/linux/A.cpp", "iconOf(\"folder.open\");"), IsEmpty());
    EXPECT_THAT(namedIn("src/ui/a/A.cpp", "// symbol = \"scope\"\nsymbol = \":/Zelk/%1.svg\";"), IsEmpty());
}

}  // namespace
}  // namespace zelk::house
