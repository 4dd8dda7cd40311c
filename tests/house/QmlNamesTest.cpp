// SPDX-License-Identifier: MIT
#include "QmlNames.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace zelk::house {
namespace {

/// As Qt writes them.
const std::string kDescription = R"(import QtQuick.tooling 1.2
Module {
    Component {
        file: "private/qobject_p.h"
        name: "QObject"
        Property { name: "objectName"; type: "QString"; index: 0 }
    }
    Component {
        file: "qquickitem.h"
        name: "QQuickItem"
        prototype: "QObject"
        exports: [
            "QtQuick/Item 2.0",
            "QtQuick/Item 6.0"
        ]
        Property {
            name: "right"
            type: "QQuickAnchorLine"
        }
    }
    Component {
        name: "QQuickText"
        prototype: "QQuickItem"
        exports: ["QtQuick/Text 2.0"]
        Property { name: "text"; type: "QString" }
    }
}
)";

std::vector<Violation> checkQml(const std::string& qml, std::vector<SourceFile> others = {}) {
    others.push_back({"src/ui/View.qml", qml});
    return checkIds(others, {kDescription});
}

TEST(QmlIds, acceptsIdsThatNoPropertyHas) {
    EXPECT_THAT(checkQml("Item {\n    id: view\n\n    Text {\n        id: caption\n    }\n}\n"), IsEmpty());
}

TEST(QmlIds, takesNoEnumerationForAnObject) {
    EXPECT_THAT(checkQml("Item {\n    id: view\n\n    enum Kind {\n        First,\n        Second\n    }\n}\n"),
                IsEmpty());
}

TEST(QmlIds, rejectsTheNameOfAPropertyOfTheObjectsType) {
    const auto found = checkQml("Item {\n    Item {\n        id: right\n    }\n}\n");
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].path, "src/ui/View.qml");
    EXPECT_EQ(found[0].line, 3);
    EXPECT_THAT(found[0].message, HasSubstr("\"right\""));
}

TEST(QmlIds, findsThePropertyInABaseOfAnotherObjectsType) {
    EXPECT_THAT(checkQml("Item {\n    id: objectName\n}\n"), SizeIs(1));
    EXPECT_THAT(checkQml("Item {\n    id: text\n}\n"), IsEmpty());
    EXPECT_THAT(checkQml("Item {\n    id: text\n    Text {\n    }\n}\n"), SizeIs(1));
}

TEST(QmlIds, rejectsTheNameOfAPropertyThatAnObjectDeclares) {
    for (const std::string declaration :
         {"required property string age", "property int age: 3", "readonly property list<Item> age: []", "required age",
          "default property alias age: item.data", "property var age: {"}) {
        const std::string end = declaration.ends_with('{') ? "}\n" : "";
        EXPECT_THAT(checkQml("Item {\n    id: age\n    Text {\n        " + declaration + "\n" + end + "    }\n}\n"),
                    SizeIs(1))
            << declaration;
    }
}

TEST(QmlIds, readsPropertiesOfOurOwnQmlTypes) {
    const SourceFile page{"src/ui/Page.qml",
                          "Text {\n    required property int view\n    Item {\n        property int inner\n    }\n}\n"};
    EXPECT_THAT(checkQml("Item {\n    id: view\n    Page {}\n}\n", {page}), SizeIs(1));
    EXPECT_THAT(checkQml("Item {\n    id: text\n    Page {}\n}\n", {page}), SizeIs(1));
    // What is declared deeper in that file is not seen from outside.
    EXPECT_THAT(checkQml("Item {\n    id: inner\n    Page {}\n}\n", {page}), IsEmpty());
}

TEST(QmlIds, readsPropertiesOfCppTypes) {
    const SourceFile header{"src/ui/Chart.h",
                            "class Other : public QObject {\n    Q_PROPERTY(int count READ count)\n};\n"
                            "class Chart final : public zelk::QQuickItem {\n    QML_ELEMENT\n"
                            "    Q_PROPERTY(zelk::Kind* box READ box CONSTANT)\n};\n"
                            "class Foreign : public QObject {\n    QML_NAMED_ELEMENT(Gauge)\n"
                            "    Q_PROPERTY(QList<int> marks READ marks)\n};\n"};
    EXPECT_THAT(checkQml("Item {\n    id: box\n    Chart {}\n}\n", {header}), SizeIs(1));
    EXPECT_THAT(checkQml("Item {\n    id: right\n    Chart {}\n}\n", {header}), SizeIs(1));
    EXPECT_THAT(checkQml("Item {\n    id: count\n    Chart {}\n}\n", {header}), IsEmpty());
    EXPECT_THAT(checkQml("Item {\n    id: marks\n    Gauge {}\n}\n", {header}), SizeIs(1));
}

TEST(QmlIds, readsInlineComponentsAndValueSources) {
    EXPECT_THAT(
        checkQml(
            "Item {\n    id: shape\n    component Face: Text {\n        property int shape\n    }\n    Face {}\n}\n"),
        SizeIs(1));
    EXPECT_THAT(checkQml("Item {\n    id: text\n    Text on right {\n    }\n}\n"), SizeIs(1));
    EXPECT_THAT(checkQml("Item {\n    id: text\n    property Item face: Text {\n    }\n}\n"), SizeIs(1));
}

TEST(QmlIds, takesNoCommentTextOrScriptForAnObject) {
    EXPECT_THAT(checkQml("Item {\n    id: text\n    // Text {\n    /* Text { */\n    property string a: \"Text {\"\n"
                         "    function f() {\n        if (a) {\n            return 'Text {';\n        }\n    }\n}\n"),
                IsEmpty());
}

TEST(QmlIds, tellsOfATypeThatNothingDescribes) {
    const auto found = checkQml("Item {\n    Unknown {\n    }\n}\n");
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].line, 2);
    EXPECT_THAT(found[0].message, HasSubstr("Unknown"));
}

TEST(QmlCasts, mayBeToQtsTypesAndNotToOurs) {
    const SourceFile row{"src/ui/Row.qml", "Item {\n}\n"};
    const SourceFile view{"src/ui/View.qml",
                          "import QtQuick.Templates as T\nItem {\n    // as Row\n    property var a: b as T.Control\n"
                          "    property var c: b as Item\n    property var d: (b as Row)?.x\n}\n"};
    const auto found = checkCasts({row, view});
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].path, "src/ui/View.qml");
    EXPECT_EQ(found[0].line, 6);
    EXPECT_THAT(found[0].message, HasSubstr("Row"));
}

}  // namespace
}  // namespace zelk::house
