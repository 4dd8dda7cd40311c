// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>
#include <optional>
#include <string>

#include "platform/FileManager.h"

namespace zelk {

/// Opens a modal folder dialog, which starts in the home folder, and returns the path of the chosen folder, as bytes;
/// absent if cancelled. Does not create a missing home folder. Main thread; needs a QApplication.
std::optional<std::string> pickFolder(FileManager& files);

/// Converts the URL that a folder dialog returned. A URL can hold any bytes, but a dialog that converted the path from
/// text has replaced undecodable bytes by U+FFFD. Such a component is looked up on disk, first literally. Absent if the
/// URL is not local, or if no entry has the literal name and not exactly one decodes to it.
std::optional<std::string> chosenFolder(const QUrl& url, FileManager& files);

}  // namespace zelk
