// SPDX-License-Identifier: MIT
#include "ui/controls/AccessibleText.h"

#include "ui/controls/NumberItem.h"

namespace zelk {

QString AccessibleText::joined(QStringList texts) {
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

QString AccessibleText::bytes(double count) {
    return NumberItem::write(count, NumberItem::Bytes);
}

}  // namespace zelk

#include "moc_AccessibleText.cpp"
