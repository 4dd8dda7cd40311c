// SPDX-License-Identifier: MIT
#include "ui/theme/Typeface.h"

#include <QFontDatabase>

namespace zelk {

QString Typeface::fixed() const {
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

}  // namespace zelk

#include "moc_Typeface.cpp"
