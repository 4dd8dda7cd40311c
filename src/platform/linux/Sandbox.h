// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelk {

/// The sandbox of Flatpak that this process may run in. It shows the user's files where they are, but the /usr, /etc
/// and /var of a runtime in place of the host's, and no process of the host. Looks for it once, when constructed; safe
/// from any thread. Paths are bytes.
class Sandbox {
public:
    /// `root` is what stands before the paths of the system, for tests.
    explicit Sandbox(std::string root = {});

    /// Whether there is one, by its "/.flatpak-info".
    bool isInside() const { return !application_.empty(); }

    /// Where a file of the system is that the host knows as `path`, an absolute one: below "/run/host" in a sandbox,
    /// which may hold nothing of the sort, else `path` itself. Not for files of the user, who has them at one path.
    std::string hostPath(std::string_view path) const;

    /// What the user's `variable` ("XDG_DATA_HOME") says on the host, normalized. Flatpak gives a process in it another
    /// folder by that name and the host's by "HOST_" before it. Absent outside; if it is not set, not absolute, "/" or
    /// has a ".."; and if it leads to a folder of a sandbox, by whatever links.
    std::optional<std::string> homeOnHost(const char* variable, const std::string& home) const;

    /// The folders that are this sandbox's own or its runtime's, so that nothing in them is the user's to remove.
    /// Neither `home` nor a folder above it. Empty outside.
    std::vector<std::string> ownFolders(const std::string& home) const;

    /// Whether removing `path` would remove anything of ownFolders(). Texts only: resolve links before.
    bool isPartOf(std::string_view path, const std::string& home) const;

private:
    std::string root_;
    std::string application_;  ///< its id; empty outside
};

}  // namespace zelk
