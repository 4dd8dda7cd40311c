// SPDX-License-Identifier: MIT
#include "QtMessages.h"

#include <QByteArrayView>
#include <QMutex>
#include <utility>

namespace zelk::tour {

namespace {

QMutex mutex;
QStringList kept;
QtMessageHandler printing = nullptr;

bool isOfQml(const QMessageLogContext& context, const QString& text) {
    const QByteArrayView category(context.category);
    const QByteArrayView file(context.file);
    return category == QByteArrayView("qml") || category == QByteArrayView("js") ||
           category.startsWith(QByteArrayView("qt.qml")) || file.endsWith(QByteArrayView(".qml")) ||
           text.contains(QStringLiteral("qrc:"));
}

/// The offscreen platform warns of every window that is raised, and has no system tray.
bool isOfPlatform(const QString& text) {
    return text.startsWith(QStringLiteral("This plugin does not support ")) ||
           text.contains(QStringLiteral("QPlatformNativeInterface::systemTrayWindowChanged"));
}

/// The QML engine includes the location in the text, but console messages have it only in the context.
QString withPlace(const QMessageLogContext& context, const QString& text) {
    if (context.file == nullptr || text.contains(QStringLiteral(".qml:"))) return text;
    return QStringLiteral("%1:%2: %3").arg(QString::fromUtf8(context.file)).arg(context.line).arg(text);
}

void keep(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (isOfPlatform(text)) return;
    if (isOfQml(context, text) || (type != QtDebugMsg && type != QtInfoMsg)) {
        const QMutexLocker locker(&mutex);
        kept.append(withPlace(context, text));
    }
    printing(type, context, text);
}

}  // namespace

void keepQtMessages() {
    const QtMessageHandler before = qInstallMessageHandler(keep);
    if (before != keep) printing = before;
}

QStringList takeQtMessages() {
    const QMutexLocker locker(&mutex);
    return std::exchange(kept, {});
}

}  // namespace zelk::tour
