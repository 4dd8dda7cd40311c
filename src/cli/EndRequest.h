// SPDX-License-Identifier: MIT
#pragma once

namespace zelk::cli {

/// Waits for a survey and for a signal that asks to end, whichever comes first. Handles SIGINT, SIGTERM and SIGHUP but
/// for those that the process was started to ignore; the second of each has the default effect and ends the process. At
/// most one instance; it must outlive every thread that calls wake(). wake() from any thread, the rest on the main one.
class EndRequest {
public:
    EndRequest();
    ~EndRequest();
    EndRequest(const EndRequest&) = delete;
    EndRequest& operator=(const EndRequest&) = delete;

    /// The number of the first signal that came; 0 if none did.
    int signal() const;
    /// Ends one wait(), the current one or the next.
    void wake();
    /// Returns after a wake() or a signal.
    void wait();

private:
    int readEnd_ = -1;
};

}  // namespace zelk::cli
