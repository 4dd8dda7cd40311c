// SPDX-License-Identifier: MIT
#include "platform/linux/AbsentTools.h"

#include "platform/CommandProgram.h"
#include "platform/Translation.h"

namespace zelk {

ChildOutcome AbsentTools::run(const std::string& executable, const std::vector<std::string>& arguments,
                              const ChildStreams& /*streams*/) {
    std::vector<std::string> words{executable};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return {filled(translated("Failure", "Flatpak’s sandbox has no %1."), {toolName(words)}), 0, {}};
}

}  // namespace zelk
