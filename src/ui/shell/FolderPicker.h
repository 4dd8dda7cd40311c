// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>
#include <optional>
#include <string>

#include "platform/FileManager.h"

namespace zelk {

/// Asks the person for one folder, modally, and gives its path in the bytes that the system has for it; absent if none
/// was chosen. Makes no home folder that does not exist. Main thread, with a QApplication.
std::optional<std::string> pickFolder(FileManager& files);

/// The path of the folder that a dialog answered with. A URL holds any bytes; a dialog that made it of text has put
/// U+FFFD where the name was none, and then the folder is looked for on the disk, first by just that name. Absent if
/// the URL is not of this machine, or if no entry has the name and several look like it.
std::optional<std::string> chosenFolder(const QUrl& url, FileManager& files);

}  // namespace zelk
