// SPDX-License-Identifier: MIT
#include "TextCheck.h"

#include <QQuickItem>
#include <QRegularExpression>
#include <algorithm>

#include "MarkedLanguage.h"
#include "PseudoLanguage.h"

namespace zelk::tour {

namespace {

bool isTranslated(const QString& text) {
    return (text.startsWith(PseudoLanguage::opening) && text.endsWith(PseudoLanguage::closing)) ||
           (text.startsWith(MarkedLanguage::mark) && text.endsWith(MarkedLanguage::mark));
}

}  // namespace

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
    const QString text = item.property("text").toString().trimmed();
    const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    // What is scrolled out of sight is looked at where it is scrolled to.
    if (text.isEmpty() || !shown.intersects(place)) return;
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

void TextCheck::report(const QString& what, const QString& text, const QString& picture) {
    const QString finding = what + QStringLiteral(": ") + text;
    if (reported_.contains(finding)) return;
    reported_.insert(finding);
    findings_.append(QStringLiteral("%1, in %2").arg(finding, picture));
}

}  // namespace zelk::tour
