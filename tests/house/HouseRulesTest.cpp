// SPDX-License-Identifier: MIT
// That the checker sees what it is there to see, on sources made up for it.
#include "HouseRules.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace zelk::house {
namespace {

const std::string kLicence = "// SPDX-License-Identifier: MIT\n";

/// A source that includes exactly this, written as it stands between "#include " and the end of the line.
SourceFile including(const std::string& path, const std::string& what) {
    return {path, kLicence + "#include " + what + "\n"};
}

TEST(LayerRule, letsALayerIncludeItselfAndAllToItsLeft) {
    EXPECT_THAT(checkLayers(including("src/scan/A.cpp", "\"scan/FSNode.h\"")), IsEmpty());
    EXPECT_THAT(checkLayers(including("src/state/A.cpp", "\"platform/Time.h\"")), IsEmpty());
    EXPECT_THAT(checkLayers(including("src/app/main.cpp", "\"ui/Shell.h\"")), IsEmpty());
}

TEST(LayerRule, forbidsEveryStepToTheRight) {
    const std::vector<std::string> layers = {"platform", "scan", "reclaim", "system", "state", "ui", "app"};
    for (std::size_t from = 0; from < layers.size(); ++from) {
        for (std::size_t to = 0; to < layers.size(); ++to) {
            const auto found = checkLayers(including("src/" + layers[from] + "/A.h", "\"" + layers[to] + "/B.h\""));
            EXPECT_THAT(found, SizeIs(to > from ? 1 : 0)) << layers[from] << " includes " << layers[to];
        }
    }
}

TEST(LayerRule, keepsTheOrderOfTheRoomsOfTheInterface) {
    const std::vector<std::string> rooms{"theme", "controls", "charts", "screens/lens", "shell"};
    for (std::size_t from = 0; from < rooms.size(); ++from) {
        for (std::size_t to = 0; to < rooms.size(); ++to) {
            const auto found = checkLayers(including("src/ui/" + rooms[from] + "/A.h", "\"ui/" + rooms[to] + "/B.h\""));
            EXPECT_THAT(found, SizeIs(to > from ? 1 : 0)) << rooms[from] << " " << rooms[to];
        }
    }
    EXPECT_THAT(checkLayers(including("src/ui/theme/A.h", "\"ui/B.h\"")), IsEmpty());
    EXPECT_THAT(checkLayers(including("src/app/main.cpp", "\"ui/shell/B.h\"")), IsEmpty());
}

TEST(LayerRule, keepsTheProgramForTheTerminalBesideTheInterface) {
    for (const std::string layer : {"platform", "scan", "reclaim", "system", "state", "cli"})
        EXPECT_THAT(checkLayers(including("src/cli/A.cpp", "\"" + layer + "/B.h\"")), IsEmpty()) << layer;
    for (const std::string layer : {"ui", "app", "admin"})
        EXPECT_THAT(checkLayers(including("src/cli/A.cpp", "\"" + layer + "/B.h\"")), SizeIs(1)) << layer;
    for (const std::string layer : {"platform", "scan", "reclaim", "system", "state", "ui", "app", "admin"})
        EXPECT_THAT(checkLayers(including("src/" + layer + "/A.cpp", "\"cli/B.h\"")), SizeIs(1)) << layer;
    for (const std::string header : {"\"platform/linux/A.h\"", "\"platform/posix/A.h\""})
        EXPECT_THAT(checkLayers(including("src/cli/main.cpp", header)), SizeIs(1)) << header;
}

TEST(LayerRule, namesTheLine) {
    const auto found = checkLayers({"src/scan/A.cpp", kLicence + "\n#include \"scan/A.h\"\n#include \"ui/B.h\"\n"});
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].line, 4);
    EXPECT_THAT(found[0].message, HasSubstr("ui/B.h"));
}

TEST(LayerRule, isNotEvadedByAngleBracketsBlanksOrAPathThroughTheParent) {
    EXPECT_THAT(checkLayers(including("src/scan/A.cpp", "<ui/B.h>")), SizeIs(1));
    EXPECT_THAT(checkLayers({"src/scan/A.cpp", "  #  include   \"ui/B.h\"  // why\n"}), SizeIs(1));
    EXPECT_THAT(checkLayers(including("src/scan/A.cpp", "\"../ui/B.h\"")), SizeIs(1));
    EXPECT_THAT(checkLayers(including("src/scan/A.cpp", "\"scan/../ui/B.h\"")), SizeIs(1));
    EXPECT_THAT(checkLayers({"src/scan/A.mm", "#import \"ui/B.h\"\n"}), SizeIs(1));
}

TEST(LayerRule, readsNoCommentedInclude) {
    EXPECT_THAT(checkLayers({"src/scan/A.cpp", "// #include \"ui/B.h\"\n/*\n#include \"ui/B.h\"\n*/\n"}), IsEmpty());
}

TEST(LayerRule, keepsASystemsFolderToItselfAndToTheApplication) {
    for (const std::string system : {"linux", "macos", "posix"}) {
        const std::string header = "\"platform/" + system + "/Reader.h\"";
        for (const std::string layer : {"scan", "reclaim", "system", "state", "ui"}) {
            EXPECT_THAT(checkLayers(including("src/" + layer + "/A.cpp", header)), SizeIs(1)) << layer << " " << header;
        }
        EXPECT_THAT(checkLayers(including("src/platform/A.cpp", header)), SizeIs(1));
        EXPECT_THAT(checkLayers(including("src/platform/A.cpp", "\"" + system + "/Reader.h\"")), SizeIs(1));
        EXPECT_THAT(checkLayers(including("src/platform/" + system + "/A.cpp", header)), IsEmpty());
        EXPECT_THAT(checkLayers(including("src/app/main.cpp", header)), IsEmpty());
    }
}

TEST(LayerRule, keepsTheTwoSystemsApartAndLetsThemShareTheCommonFolder) {
    EXPECT_THAT(checkLayers(including("src/platform/linux/A.cpp", "\"platform/macos/B.h\"")), SizeIs(1));
    EXPECT_THAT(checkLayers(including("src/platform/macos/A.mm", "\"../linux/B.h\"")), SizeIs(1));
    EXPECT_THAT(checkLayers(including("src/platform/posix/A.cpp", "\"platform/linux/B.h\"")), IsEmpty());
    EXPECT_THAT(checkLayers(including("src/platform/linux/A.cpp", "\"platform/posix/B.h\"")), IsEmpty());
    EXPECT_THAT(checkLayers(including("src/platform/macos/A.mm", "\"platform/posix/B.h\"")), IsEmpty());
}

TEST(LayerRule, keepsTheProgramOfRootApart) {
    for (const std::string layer : {"platform", "scan", "reclaim", "system", "state", "ui", "app"}) {
        EXPECT_THAT(checkLayers(including("src/" + layer + "/A.cpp", "\"admin/AdminCommand.h\"")), SizeIs(1)) << layer;
        EXPECT_THAT(checkLayers(including("src/" + layer + "/A.cpp", "\"../admin/AdminCommand.h\"")), SizeIs(1))
            << layer;
        EXPECT_THAT(checkLayers(including("src/admin/A.cpp", "\"" + layer + "/B.h\"")), SizeIs(1)) << layer;
        EXPECT_THAT(checkLayers(including("src/admin/A.cpp", "\"../" + layer + "/B.h\"")), SizeIs(1)) << layer;
    }
    for (const std::string header : {"\"admin/AdminCommand.h\"", "\"AdminCommand.h\"", "<sys/stat.h>", "<string>"})
        EXPECT_THAT(checkLayers(including("src/admin/A.cpp", header)), IsEmpty()) << header;
    EXPECT_THAT(checkLayers(including("tests/admin/A.cpp", "\"admin/AdminCommand.h\"")), IsEmpty());
}

TEST(LayerRule, takesTheSystemsOwnHeadersForNoLayer) {
    EXPECT_THAT(checkLayers(including("src/platform/posix/A.cpp", "<linux/openat2.h>")), IsEmpty());
    EXPECT_THAT(checkLayers(including("src/scan/A.cpp", "<system_error>")), IsEmpty());
}

TEST(QtRule, rejectsEveryFormOfQtHeaderLeftOfState) {
    for (const std::string path :
         {"src/scan/A.h", "src/scan/AModel.h", "src/platform/A.cpp", "src/reclaim/A.cpp", "src/reclaim/AModel.h",
          "src/system/Score.h", "src/system/AModel.cpp", "src/admin/A.cpp"}) {
        for (const std::string header :
             {"<QString>", "<QtCore/QString>", "<QtQml/qqmlregistration.h>", "<qobject.h>", "\"QString\""}) {
            EXPECT_THAT(checkQt(including(path, header)), SizeIs(1)) << path << " includes " << header;
        }
        for (const std::string header : {"<string>", "<sys/stat.h>", "<algorithm>", "\"platform/Time.h\""}) {
            EXPECT_THAT(checkQt(including(path, header)), IsEmpty()) << path << " includes " << header;
        }
    }
}

TEST(QtRule, rejectsQtThroughAHeaderOfOurs) {
    EXPECT_THAT(checkQt(including("src/reclaim/Cleaner.cpp", "\"state/AppModel.h\"")), SizeIs(1));
    EXPECT_THAT(checkQt(including("src/reclaim/Cleaner.cpp", "\"../state/AppModel.h\"")), SizeIs(1));
    EXPECT_THAT(checkQt(including("src/reclaim/Cleaner.cpp", "\"reclaim/Removal.h\"")), IsEmpty());
    EXPECT_THAT(checkQt(including("src/state/AppModel.cpp", "\"state/AppModel.h\"")), IsEmpty());
}

TEST(QtRule, allowsQtCoreInStateAndQtQuickInUiOnly) {
    EXPECT_THAT(checkQt(including("src/state/AppModel.h", "<QObject>")), IsEmpty());
    EXPECT_THAT(checkQt(including("src/state/AppModel.h", "<QQuickItem>")), SizeIs(1));
    EXPECT_THAT(checkQt(including("src/state/AppModel.h", "<QtQuick/QQuickItem>")), SizeIs(1));
    EXPECT_THAT(checkQt(including("src/ui/Gauge.h", "<QQuickPaintedItem>")), IsEmpty());
    EXPECT_THAT(checkQt(including("src/app/main.cpp", "<QQuickWindow>")), IsEmpty());
}

TEST(CompositionRootRule, letsOnlyTheOutermostProgramsNameThePlatform) {
    const std::string use = kLicence + "\nNativePlatform platform;\n";
    for (const std::string path : {"src/scan/A.cpp", "src/reclaim/A.cpp", "src/state/A.cpp", "src/ui/A.cpp",
                                   "src/cli/A.cpp", "src/cli/main.cpp"}) {
        const auto found = checkCompositionRoot({path, use});
        ASSERT_THAT(found, SizeIs(1)) << path;
        EXPECT_EQ(found[0].line, 3);
    }
    for (const std::string path : {"src/app/main.cpp", "src/platform/NativePlatform.h", "src/platform/linux/A.cpp",
                                   "bench/windows.cpp", "tools/tour.cpp", "tests/e2e/A.cpp"}) {
        EXPECT_THAT(checkCompositionRoot({path, use}), IsEmpty()) << path;
    }
}

TEST(CompositionRootRule, letsTheProgramForTheTerminalNameTheStorage) {
    const std::string use = kLicence + "\nNativeStorage storage;\n";
    for (const std::string path :
         {"src/cli/main.cpp", "src/app/main.cpp", "src/platform/linux/A.cpp", "tests/cli/A.cpp"})
        EXPECT_THAT(checkCompositionRoot({path, use}), IsEmpty()) << path;
    for (const std::string path : {"src/cli/Program.cpp", "src/state/A.cpp", "src/ui/A.cpp"})
        EXPECT_THAT(checkCompositionRoot({path, use}), SizeIs(1)) << path;
}

TEST(CompositionRootRule, looksAtWholeWordsOutsideComments) {
    EXPECT_THAT(checkCompositionRoot({"src/ui/A.cpp", "// NativePlatform makes these\nNativePlatforms x;\n"}),
                IsEmpty());
}

TEST(FormRule, wantsTheLicenceFirst) {
    EXPECT_THAT(checkForm({"src/scan/A.cpp", kLicence + "int a;\n"}), IsEmpty());
    EXPECT_THAT(checkForm({"src/scan/A.cpp", "int a;\n"}), SizeIs(1));
    EXPECT_THAT(checkForm({"src/scan/A.cpp", ""}), SizeIs(1));
    EXPECT_THAT(checkForm({"src/scan/A.cpp", "\n" + kLicence}), SizeIs(1));
    EXPECT_THAT(checkForm({"src/scan/A.cpp", "// SPDX-License-Identifier: MIT OR X\n"}), SizeIs(1));
    EXPECT_THAT(checkForm({"run", "#!/bin/sh\n# SPDX-License-Identifier: MIT\n"}), IsEmpty());
    EXPECT_THAT(checkForm({"run", "#!/bin/sh\n"}), SizeIs(1));
    EXPECT_THAT(checkForm({"run", "#!/bin/sh"}), SizeIs(1));
    EXPECT_THAT(checkForm({"src/CMakeLists.txt", "# SPDX-License-Identifier: MIT\n"}), IsEmpty());
    EXPECT_THAT(checkForm({"src/CMakeLists.txt", kLicence}), SizeIs(1));
}

TEST(FormRule, countsTheLastLineWithAndWithoutItsBreak) {
    const auto lines = [](int count) {
        std::string text = kLicence;
        for (int line = 2; line <= count; ++line) text += "x\n";
        return text;
    };
    EXPECT_THAT(checkForm({"src/scan/A.cpp", lines(500)}), IsEmpty());
    EXPECT_THAT(checkForm({"src/scan/A.cpp", lines(501)}), SizeIs(1));
    EXPECT_THAT(checkForm({"src/scan/A.cpp", lines(500) + "x"}), SizeIs(1));
    EXPECT_THAT(checkForm({"src/ui/A.qml", lines(300)}), IsEmpty());
    EXPECT_THAT(checkForm({"src/ui/A.qml", lines(301)}), SizeIs(1));
    for (const std::string program : {"src/app/main.cpp", "src/cli/main.cpp"}) {
        EXPECT_THAT(checkForm({program, lines(100)}), IsEmpty()) << program;
        EXPECT_THAT(checkForm({program, lines(101)}), SizeIs(1)) << program;
    }
}

TEST(Comments, goAndLeaveLinesAndStringsInPlace) {
    EXPECT_EQ(withoutComments("a // b\nc"), "a \nc");
    EXPECT_EQ(withoutComments("a /* b\n b */ c"), "a \n c");
    EXPECT_EQ(withoutComments("\"// no\" /* yes */"), "\"// no\" ");
    EXPECT_EQ(withoutComments(R"("a\"// b" // c)"), R"("a\"// b" )");
    EXPECT_EQ(withoutComments("a /* open"), "a ");
}

TEST(Comments, thatEndTheTextAreNoIncludes) {
    std::vector<std::string> targets;
    for (const Include& include :
         includesOf({"src/scan/A.cpp", "#include <a>\n#include \"B.h\"  /* c */\n#include <d>"})) {
        targets.push_back(include.target);
    }
    EXPECT_THAT(targets, ElementsAre("a", "scan/B.h", "d"));
}

}  // namespace
}  // namespace zelk::house
