// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

/// Persistent settings by key. Main thread.
class Preferences {
public:
    virtual ~Preferences() = default;
    /// False if never set.
    virtual bool flag(const std::string& key) = 0;
    /// Ignores a failed write.
    virtual void setFlag(const std::string& key, bool value) = 0;
};

/// Whether the welcome pages were completed; set once, never cleared by the program.
inline constexpr const char* didOnboardKey = "zelk/didOnboard";

}  // namespace zelk
