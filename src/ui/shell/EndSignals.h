// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace zelk {

/// Hears the signals by which a session that ends, a terminal or a person asks a process to end, and tells so on the
/// main thread. Each is heard once: the second of a kind ends the process as if this were not there. One at a time, and
/// main thread.
class EndSignals {
public:
    explicit EndSignals(std::function<void()> asked);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    int readEnd_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zelk
