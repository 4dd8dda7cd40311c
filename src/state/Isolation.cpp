// SPDX-License-Identifier: MIT
#include "state/Isolation.h"

#include <QCoreApplication>

namespace zelk {

namespace {

constexpr char16_t leftToRightIsolate = 0x2066;
constexpr char16_t firstStrongIsolate = 0x2068;
constexpr char16_t endOfIsolate = 0x2069;
constexpr char16_t rightToLeftMark = 0x200F;

bool isPath(const QString& text) {
    return text.startsWith(u'/') || text.startsWith(QStringLiteral("~/")) || text.startsWith(u'…');
}

}  // namespace

bool isWrittenFromRight() {
    return QCoreApplication::translate("QGuiApplication", "QT_LAYOUT_DIRECTION") == QStringLiteral("RTL");
}

QString isolated(const QString& text) {
    if (text.isEmpty() || !isWrittenFromRight()) return text;
    return QChar(isPath(text) ? leftToRightIsolate : firstStrongIsolate) + text + QChar(endOfIsolate);
}

QString withoutIsolation(QString text) {
    return text.removeIf([](QChar character) { return character >= leftToRightIsolate && character <= endOfIsolate; });
}

QString inReadingOrder(const QString& line) {
    return line.isEmpty() || !isWrittenFromRight() ? line : QChar(rightToLeftMark) + line;
}

}  // namespace zelk
