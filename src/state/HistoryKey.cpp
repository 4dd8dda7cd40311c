// SPDX-License-Identifier: MIT
#include "state/HistoryKey.h"

#include <QByteArray>

namespace zelk {
namespace {

constexpr const char* scheme = "file://";

QString escaped(const QByteArray& bytes) {
    return scheme + QString::fromLatin1(bytes.toPercentEncoding("/"));
}

}  // namespace

QString historyKey(const std::string& path) {
    const QByteArray bytes = QByteArray::fromStdString(path);
    const QString text = QString::fromUtf8(bytes);
    return text.toUtf8() == bytes && !path.starts_with(scheme) ? text : escaped(bytes);
}

std::string pathOfHistoryKey(const QString& key) {
    const QByteArray text = key.toUtf8();
    if (text.startsWith(scheme)) {
        const std::string path = QByteArray::fromPercentEncoding(text.mid(qstrlen(scheme))).toStdString();
        if (historyKey(path) == key) return path;
    }
    return text.toStdString();
}

}  // namespace zelk
