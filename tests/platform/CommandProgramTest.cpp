// SPDX-License-Identifier: MIT
#include "platform/CommandProgram.h"

#include <gmock/gmock.h>

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CommandProgram, fileNameIsBehindTheLastSlash) {
    EXPECT_EQ(fileNameOf("/usr/bin/vim"), "vim");
    EXPECT_EQ(fileNameOf("vim"), "vim");
    EXPECT_EQ(fileNameOf("/usr/bin/"), "");
    EXPECT_EQ(fileNameOf(""), "");
}

TEST(CommandProgram, interpretersAndLaunchersBelongToNobody) {
    for (const char* program : {"/usr/bin/python3.11", "python3", "sh", "/bin/bash", "lua5.4", "java", "flatpak",
                                "/snap/bin/snap", "env", "xdg-open", "steam"})
        EXPECT_TRUE(isSharedLauncher(program)) << program;
    for (const char* program : {"", "vim", "pythonista", "my-sh", "/opt/java/editor", "node-editor"})
        EXPECT_FALSE(isSharedLauncher(program)) << program;
}

TEST(CommandProgram, interpretersRunTheFirstFileThatTheyAreGiven) {
    EXPECT_EQ(interpretedFile({"python3.11", "/x.py", "/y.py"}), "/x.py");
    EXPECT_EQ(interpretedFile({"/usr/bin/java", "-jar", "/x.jar", "-v"}), "/x.jar");
    EXPECT_EQ(interpretedFile({"sh", "x.sh"}), "x.sh");
    for (const std::vector<std::string>& words :
         std::initializer_list<std::vector<std::string>>{{},
                                                         {"java"},
                                                         {"java", "-jar"},
                                                         {"java", "-cp", "/x.jar", "Main"},
                                                         {"java", "-jar", "-jar"},
                                                         {"python3", "-m", "/x.py"},
                                                         {"python3", "-jar", "/x.py"},
                                                         {"xdg-open", "/x.pdf"},
                                                         {"sudo", "/x"},
                                                         {"steam", "/x"},
                                                         {"vim", "/x"}})
        EXPECT_EQ(interpretedFile(words), "") << (words.empty() ? "" : words.front());
}

TEST(CommandProgram, envIsDroppedWithWhatItSets) {
    EXPECT_THAT(withoutEnv({"env", "-S", "A=b", "vim", "C=d"}), ElementsAre("vim", "C=d"));
    EXPECT_THAT(withoutEnv({"/usr/bin/env", "vim"}), ElementsAre("vim"));
    EXPECT_THAT(withoutEnv({"vim", "A=b"}), ElementsAre("vim", "A=b"));
    EXPECT_THAT(withoutEnv({"env", "A=b"}), IsEmpty());
    EXPECT_THAT(withoutEnv({}), IsEmpty());
}

TEST(CommandProgram, toolIsNamedBehindEnvToo) {
    EXPECT_EQ(toolName({"/usr/bin/pkexec", "x"}), "pkexec");
    EXPECT_EQ(toolName({"/usr/bin/env", "A=1", "-S", "npm", "cache"}), "npm");
    EXPECT_EQ(toolName({"/usr/bin/env"}), "env");
    EXPECT_EQ(toolName({"cargo"}), "cargo");
    EXPECT_EQ(toolName({}), "");
}

}  // namespace
}  // namespace zelk
