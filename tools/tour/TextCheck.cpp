// SPDX-License-Identifier: MIT
#include "TextCheck.h"

#include <QQuickItem>
#include <QRegularExpression>
#include <algorithm>

#include "MarkedLanguage.h"
#include "PseudoLanguage.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/ReadingDirection.h"

namespace zelk::tour {

namespace {

bool isTranslated(const QString& text) {
    return (text.startsWith(PseudoLanguage::opening) && text.endsWith(PseudoLanguage::closing)) ||
           (text.startsWith(MarkedLanguage::mark) && text.endsWith(MarkedLanguage::mark));
}

/// Without the invisible marks of a text from right to left.
QString unmarked(const QString& text) {
    return withoutIsolation(text).remove(QChar(0x200F)).trimmed();
}

/// What stands outside of all isolated parts, each of which leaves an object mark behind.
QString outsideOfIsolation(const QString& text) {
    QString outside;
    int depth = 0;
    for (const QChar character : text) {
        const QChar::Direction kind = character.direction();
        if (kind == QChar::DirPDI) {
            depth = std::max(depth - 1, 0);
        } else if (kind == QChar::DirLRI || kind == QChar::DirRLI || kind == QChar::DirFSI) {
            if (depth++ == 0) outside += QChar(QChar::ObjectReplacementCharacter);
        } else if (depth == 0) {
            outside += character;
        }
    }
    return outside;
}

bool hasLetters(const QString& text, std::initializer_list<QChar::Direction> kinds) {
    return std::any_of(text.begin(), text.end(), [&](QChar character) {
        return std::find(kinds.begin(), kinds.end(), character.direction()) != kinds.end();
    });
}

}  // namespace

void TextCheck::allow(const QString& name) {
    names_.insert(unmarked(name));
}

void TextCheck::look(QQuickWindow& window, const QString& picture, bool roomy) {
    roomy_ = roomy;
    lookBelow(*window.contentItem(), QRectF({0, 0}, window.size()), picture);
}

void TextCheck::lookBelow(QQuickItem& item, const QRectF& shown, const QString& picture) {
    if (!item.isVisible() || item.opacity() == 0) return;
    const QRectF below = item.clip() ? shown & item.mapRectToScene(item.boundingRect()) : shown;
    if (below.isEmpty()) return;
    if (item.inherits("QQuickText") || item.inherits("zelk::NumberItem")) lookAt(item, below, picture);
    for (QQuickItem* child : item.childItems()) lookBelow(*child, below, picture);
}

void TextCheck::lookAt(QQuickItem& item, const QRectF& shown, const QString& picture) {
    const QString written = item.property("text").toString();
    const QString text = unmarked(written);
    const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    // What is scrolled out of sight is looked at where it is scrolled to.
    if (text.isEmpty() || !shown.intersects(place)) return;
    const bool isPrinted =
        QString::fromLatin1(item.metaObject()->className()).startsWith(QStringLiteral("PrintedText_"));
    if (readsFromRight() && !isPrinted) lookAtOrder(written, picture);
    if (isTranslated(text))
        translated_.insert(text);
    else if (!sameEverywhere(text))
        return report(QStringLiteral("not translated"), text, picture);
    else
        return;
    if (!roomy_) return;
    const double tolerance = 0.5;
    if (item.property("truncated").toBool())
        report(QStringLiteral("elided"), text, picture);
    else if (item.property("contentWidth").toDouble() > item.width() + tolerance)
        report(QStringLiteral("wider than its place"), text, picture);
    else if (place.left() < shown.left() - tolerance || place.right() > shown.right() + tolerance)
        report(QStringLiteral("cut off at the side"), text, picture);
}

bool TextCheck::sameEverywhere(const QString& text) const {
    static const QRegularExpression figure(
        QStringLiteral("^[-+−×]?[\\d.,\\s]+(bytes|KB|MB|GB|TB|PB|EB|%|/s)?$"
                       "|^[~/…].*$|^(Ctrl|Strg|Alt|Shift|Umschalt|Meta)\\+.+$|^\\W+$"));
    static const QRegularExpression divider(QStringLiteral("\\s*·\\s*|\\s{2,}"));
    const QStringList parts = text.split(divider, Qt::SkipEmptyParts);
    return names_.contains(text) || std::all_of(parts.begin(), parts.end(), [&](const QString& part) {
               return isTranslated(part) || figure.match(part).hasMatch() || names_.contains(part);
           });
}

void TextCheck::lookAtOrder(const QString& text, const QString& picture) {
    const QString outside = outsideOfIsolation(text);
    const bool hasHebrew = hasLetters(outside, {QChar::DirR, QChar::DirAL});
    if (hasHebrew && hasLetters(outside, {QChar::DirL}))
        report(QStringLiteral("not isolated"), unmarked(text), picture);
    else if (!hasHebrew && outside.count(QChar(QChar::ObjectReplacementCharacter)) > 1)
        report(QStringLiteral("of no direction"), unmarked(text), picture);
}

void TextCheck::report(const QString& what, const QString& text, const QString& picture) {
    const QString finding = what + QStringLiteral(": ") + text;
    if (reported_.contains(finding)) return;
    reported_.insert(finding);
    findings_.append(QStringLiteral("%1, in %2").arg(finding, picture));
}

}  // namespace zelk::tour
