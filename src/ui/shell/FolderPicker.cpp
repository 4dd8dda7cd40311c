// SPDX-License-Identifier: MIT
#include "ui/shell/FolderPicker.h"

#include <QFile>
#include <QFileDialog>

namespace zelk {

std::optional<std::string> pickFolder() {
    const QString folder = QFileDialog::getExistingDirectory();
    if (folder.isEmpty()) return std::nullopt;
    return QFile::encodeName(folder).toStdString();
}

}  // namespace zelk
