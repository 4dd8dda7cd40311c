// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QString>

#include "scan/FileType.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// The name, colour and symbol of a file type.
struct FileTypeLook {
    Q_DECLARE_TR_FUNCTIONS(FileTypeLook)

public:
    QString name;
    QColor color;
    QString symbol;
};

/// The colour of `other` is invalid, as it depends on the theme.
FileTypeLook lookOf(FileType type);

/// The same with every colour.
FileTypeLook lookOf(FileType type, const ZelkTheme& theme);

}  // namespace zelk
