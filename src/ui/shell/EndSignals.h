// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace zelk {

/// Handles SIGTERM, SIGINT and SIGHUP by calling `asked` on the main thread. Each is handled once: its second
/// occurrence has the default effect and ends the process. At most one instance; main thread.
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
