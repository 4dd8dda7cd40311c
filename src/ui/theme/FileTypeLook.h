// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QCoreApplication>
#include <QString>

#include "scan/FileType.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// The name, colour and symbol of a file type.
struct FileTypeLook {
    Q_GADGET
    QML_VALUE_TYPE(fileTypeLook)
    Q_DECLARE_TR_FUNCTIONS(FileTypeLook)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)

public:
    QString name;
    QColor color;
    QString symbol;

    bool operator==(const FileTypeLook&) const = default;
};

/// The colour of `other` is invalid, as it depends on the theme.
FileTypeLook lookOf(FileType type);

/// The same with every colour.
FileTypeLook lookOf(FileType type, const ZelkTheme& theme);

}  // namespace zelk
