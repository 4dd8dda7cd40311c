// SPDX-License-Identifier: MIT
#include "ui/reclaim/ItemTexts.h"

#include <string_view>

#include "ui/text/DisplayText.h"

namespace zelk {

QString nameOf(const Reclaimable& item) {
    return displayText(std::string_view(item.path).substr(item.path.rfind('/') + 1));
}

QString folderOf(const Reclaimable& item) {
    const std::size_t slash = item.path.rfind('/');
    if (slash == 0) return QStringLiteral("/");
    return displayText(std::string_view(item.path).substr(0, slash == std::string::npos ? 0 : slash));
}

}  // namespace zelk
