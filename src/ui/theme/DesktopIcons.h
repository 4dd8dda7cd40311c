// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QImage>
#include <string>

#include "platform/Workspace.h"

namespace zelk {

/// The desktop's icons of folders, of programs and other files, or of applications; our own symbol where it has none.
/// Recent ones are cached. Main thread.
class DesktopIcons {
public:
    enum class Of { folders, programs, applications };

    /// `workspace` must outlive it.
    DesktopIcons(Workspace& workspace, Of kind);

    /// The icon at `side` x `side` pixels, at least 1; never null. `path` is one, or for an application what
    /// Workspace::entryIcon() takes.
    QImage image(const std::string& path, int side);

private:
    QImage desktopImage(const std::string& path, int side);

    Workspace& workspace_;
    const Of kind_;
    QCache<QByteArray, QImage> images_;  ///< null images for paths without a desktop icon
};

}  // namespace zelk
