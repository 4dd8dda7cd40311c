// SPDX-License-Identifier: MIT
#include "ui/controls/Spoken.h"

namespace zelk {

QString Spoken::joined(QStringList texts) {
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

}  // namespace zelk

#include "moc_Spoken.cpp"
