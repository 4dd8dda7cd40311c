// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickWindow>
#include <QSet>
#include <QString>
#include <QStringList>

namespace zelk::tour {

/// Collects, from windows in the pseudo-language or a marked one, the texts that are not in it and those that are cut
/// off. Numbers, sizes, paths and the names that are given to `allow` are the same in every language. Where the
/// application reads from right to left, also the texts whose parts would be torn apart or out of order, since they are
/// not isolated from each other.
class TextCheck {
public:
    /// A name of the user's own, or of a product.
    void allow(const QString& name);

    /// Looks at all texts that are visible now. `picture` names the place in the findings.
    /// Where the texts are large, some may be cut off: then `roomy` is false.
    void look(QQuickWindow& window, const QString& picture, bool roomy = true);

    /// One line per text that is wrong, with the first picture that it was seen in.
    const QStringList& findings() const { return findings_; }
    /// How many texts in the language were seen.
    qsizetype translated() const { return translated_.size(); }

private:
    void lookBelow(QQuickItem& item, const QRectF& shown, const QString& picture);
    void lookAt(QQuickItem& item, const QRectF& shown, const QString& picture);
    bool sameEverywhere(const QString& text) const;
    void lookAtOrder(const QString& text, const QString& picture);
    void report(const QString& what, const QString& text, const QString& picture);

    bool roomy_ = true;
    QSet<QString> names_;
    QSet<QString> translated_;
    QSet<QString> reported_;
    QStringList findings_;
};

}  // namespace zelk::tour
