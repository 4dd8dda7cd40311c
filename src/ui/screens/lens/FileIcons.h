// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QImage>
#include <string>

#include "platform/Workspace.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// The desktop's icons of files and folders, or our own symbols if it has none. Recent ones are cached. Main thread.
class FileIcons {
public:
    /// Both arguments must outlive it.
    explicit FileIcons(Workspace& workspace, const ZelkTheme& theme = ZelkTheme::dark());

    /// Sets the theme whose colours our own symbols have. It must outlive this.
    void setTheme(const ZelkTheme& theme) { theme_ = &theme; }

    /// The icon at `side` x `side` pixels, at least 1; never null.
    QImage image(const std::string& path, bool isDirectory, int side);

private:
    QImage desktopImage(const std::string& path, bool isDirectory, int side);

    Workspace& workspace_;
    const ZelkTheme* theme_;
    QCache<QByteArray, QImage> images_;  ///< null images for paths without a desktop icon
};

}  // namespace zelk
