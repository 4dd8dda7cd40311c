// SPDX-License-Identifier: MIT
#include "ui/screens/system/DiskImageRows.h"

#include <string_view>
#include <utility>

#include "reclaim/PathExplanation.h"
#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

void DiskImageRows::show(std::vector<LargeFile> images) {
    edit(images_, std::move(images), [](const LargeFile& image) { return std::string_view(image.path); });
    allRowsChanged();
}

std::string DiskImageRows::pathAt(int row) const {
    return has(row) ? images_[static_cast<std::size_t>(row)].path : std::string();
}

QVariant DiskImageRows::value(std::size_t row, int role) const {
    const LargeFile& image = images_[row];
    switch (role) {
        case nameRole:
            return nameText(image.path);
        case folderRole:
            return folderText(image.path);
        case sizeRole:
            return byteFigure(image.size);
        case adviceRole:
            return SystemTexts::worded(diskImageAdvice(image.path));
        case spokenRole:
            return AccessibleText::joined({nameText(image.path), folderText(image.path), byteFigure(image.size),
                                           SystemTexts::worded(diskImageAdvice(image.path))});
        case explainNameRole:
            return tr("What is %1?").arg(nameText(image.path));
        case revealNameRole:
            return AccessibleText::joined({SystemTexts::of(SystemTexts::RevealFile), nameText(image.path)});
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_DiskImageRows.cpp"
