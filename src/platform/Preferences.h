// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

/// The few things that outlive a run, by key. Main thread.
class Preferences {
public:
    virtual ~Preferences() = default;
    /// False if it was never set.
    virtual bool flag(const std::string& key) = 0;
    /// A failed write is silent.
    virtual void setFlag(const std::string& key, bool value) = 0;
};

/// Whether the welcome pages have been finished: set once, never cleared by the program.
inline constexpr const char* didOnboardKey = "zelk/didOnboard";

}  // namespace zelk
