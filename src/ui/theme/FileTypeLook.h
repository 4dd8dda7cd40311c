// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QString>

#include "scan/FileType.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// The name, colour and symbol of a file type. Only the colour of `other` depends on the theme.
struct FileTypeLook {
    Q_DECLARE_TR_FUNCTIONS(FileTypeLook)

public:
    QString name;
    QColor color;
    QString symbol;
};

FileTypeLook lookOf(FileType type, const ZelkTheme& theme);

}  // namespace zelk
