// SPDX-License-Identifier: MIT
#include "MarkedLanguage.h"

#include <QCoreApplication>
#include <QDir>
#include <utility>

#include "PseudoLanguage.h"

namespace zelk::tour {

QString builtTranslations() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../src/share/zelk/translations"));
}

MarkedLanguage::MarkedLanguage(const QString& language, bool shown)
    : shown_(shown), loaded_(load(QStringLiteral("zelk_%1.qm").arg(language), builtTranslations())) {}

QString MarkedLanguage::translate(const char* context, const char* text, const char* note, int count) const {
    if (*text == '\0' || isOfQt(context)) return {};
    const QString found = QTranslator::translate(context, text, note, count);
    if (!found.isEmpty()) return shown_ ? mark + found + mark : QString();
    const QMutexLocker lock(&mutex_);
    missing_.insert(QString::fromUtf8(context) + QStringLiteral(": ") + QString::fromUtf8(text));
    return {};
}

QStringList MarkedLanguage::takeMissing() {
    const QMutexLocker lock(&mutex_);
    QStringList missing = std::exchange(missing_, {}).values();
    missing.sort();
    return missing;
}

}  // namespace zelk::tour
