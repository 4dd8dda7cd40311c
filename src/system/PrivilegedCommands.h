// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace zelk {

/// Runs shell lines as the administrator, after the system has asked the user. Each call blocks until the command has
/// ended, however long the question stays open, and returns one text for display; there are no other errors. Safe from
/// any thread; calls do not wait for each other.
///
/// On macOS the line goes to osascript. On Linux it goes through pkexec to zelk-admin, which knows the lines of Zelk by
/// name (AdminLines.h), or to a shell if zelk-admin is not installed or the line is none of these; flushing the DNS
/// cache needs no administrator there, unless it is the cache of nscd.
///
/// A line is run as it is: whoever puts a name into one makes sure that a shell takes that name for a word. The first
/// two operations differ only in what they return for a command that failed or was refused (CommandText.h).
class PrivilegedCommands {
public:
    /// The services must outlive this object.
    explicit PrivilegedCommands(const Platform& platform);

    /// The output as it is, or "done" if there is none; "cancelled" for an exit status other than 0; "failed: " and the
    /// reason if nothing could be started.
    std::string run(const std::string& line);
    /// The output as it is; after "cancelled or failed: " for an exit status other than 0; "failed: " and the reason if
    /// nothing could be started.
    std::string runAdmin(const std::string& line);
    /// The same, for whoever has to know how it ended: the texts are in the user's language.
    ChildOutcome outcomeOf(const std::string& line);

private:
    Platform platform_;
};

/// Whether this answer of runAdmin() is a refusal of pkexec itself: somebody dismissed the question, or may not answer
/// it, or there was nobody to ask. Nothing was run then.
bool wasNotAllowed(std::string_view answer);
/// The same of outcomeOf().
bool wasNotAllowed(const ChildOutcome& outcome);

}  // namespace zelk
