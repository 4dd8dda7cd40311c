// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickWindow>
#include <QSet>
#include <QString>
#include <QStringList>

namespace zelk::tour {

/// Collects, from windows in a translation that is written from right to left, what does not stand where the mirror
/// image of the same window from left to right has it, and texts that are not aligned so. Lays each window out in the
/// other direction for a moment, and compares everything that is painted or pressed. Not compared are
///   - the bubble map, whose circles lie around its middle in no order; its keys go where they point,
///   - the place of a menu, which was computed when it was opened; what is in it is compared within it,
///   - the alignment of what a command printed.
class MirrorCheck {
public:
    /// Looks at all that is visible now. `picture` names the place in the findings.
    void look(QQuickWindow& window, const QString& picture);

    /// One line per item that is wrong, with the first picture that it was seen in.
    const QStringList& findings() const { return findings_; }
    /// How many places were compared, in all pictures.
    qsizetype compared() const { return compared_; }

private:
    void report(const QString& finding, const QString& picture);

    qsizetype compared_ = 0;
    QSet<QString> reported_;
    QStringList findings_;
};

}  // namespace zelk::tour
