// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QImage>
#include <string>

#include "platform/Workspace.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// The pictures of files and folders as the desktop shows them, or our own symbols where it has none. The last ones are
/// kept. Main thread.
class FileIcons {
public:
    /// Both outlive this.
    explicit FileIcons(Workspace& workspace, const ZelkTheme& theme = ZelkTheme::dark());

    /// Our own symbol of a file is in a colour of `theme`, which outlives this.
    void setTheme(const ZelkTheme& theme) { theme_ = &theme; }

    /// `side` x `side` pixels, at least 1; never null.
    QImage image(const std::string& path, bool isDirectory, int side);

private:
    QImage desktopImage(const std::string& path, bool isDirectory, int side);

    Workspace& workspace_;
    const ZelkTheme* theme_;
    QCache<QByteArray, QImage> images_;  ///< a null image: the desktop has none
};

}  // namespace zelk
