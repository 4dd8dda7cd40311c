// SPDX-License-Identifier: MIT
#include "ui/controls/Spoken.h"

#include "ui/controls/NumberItem.h"

namespace zelk {

QString Spoken::joined(QStringList texts) {
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

QString Spoken::bytes(double count) {
    return NumberItem::write(count, NumberItem::Bytes);
}

}  // namespace zelk

#include "moc_Spoken.cpp"
