// SPDX-License-Identifier: MIT
#include "MirrorCheck.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zelk::tour {

namespace {

// Halves of points are rounded to either side.
constexpr double tolerance = 1.5;

/// Where a side is what is mirrored: the window, or a menu in it.
struct Frame {
    double left;
    double width;
};

struct Place {
    double left;  ///< in its frame
    double width;
    Frame frame;
    Qt::Alignment alignment;  ///< of the text in it; none for other items
};

using Places = std::vector<std::pair<const QQuickItem*, Place>>;

bool isTypeOf(const QQuickItem& item, const char* name) {
    return QString::fromLatin1(item.metaObject()->className()).startsWith(QLatin1String(name) + u'_');
}

bool staysAsItIs(const QQuickItem& item) {
    return item.inherits("zelk::BubblePicture");
}

bool isMenu(const QQuickItem& item) {
    return item.inherits("QQuickPopupItem") && item.parent() != nullptr && item.parent()->inherits("QQuickMenu");
}

Qt::Alignment alignmentOf(const QQuickItem& item) {
    if (isTypeOf(item, "PrintedText")) return {};
    return Qt::Alignment(item.property("effectiveHorizontalAlignment").toInt());
}

Qt::Alignment mirrored(Qt::Alignment alignment) {
    if (alignment == Qt::AlignLeft) return Qt::AlignRight;
    return alignment == Qt::AlignRight ? Qt::Alignment(Qt::AlignLeft) : alignment;
}

void gather(const QQuickItem& item, Frame frame, Places& places) {
    if (!item.isVisible() || item.opacity() == 0 || staysAsItIs(item)) return;
    const QRectF box = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    if (isMenu(item))
        frame = {box.left(), box.width()};
    else if (item.flags().testFlag(QQuickItem::ItemHasContents) || item.inherits("QQuickControl"))
        places.emplace_back(&item, Place{box.left() - frame.left, box.width(), frame, alignmentOf(item)});
    for (const QQuickItem* child : item.childItems()) gather(*child, frame, places);
}

void layOut(QQuickItem& item) {
    item.ensurePolished();
    for (QQuickItem* child : item.childItems()) layOut(*child);
}

Places placesIn(QQuickWindow& window, Qt::LayoutDirection direction) {
    QGuiApplication::setLayoutDirection(direction);
    // What is placed may move what others depend on, so once is not enough. A frame would do the same, but paint too.
    for (int round = 0; round < 3; ++round) layOut(*window.contentItem());
    Places places;
    gather(*window.contentItem(), {0, static_cast<double>(window.width())}, places);
    return places;
}

/// What a person would call it, and what stands around it.
QString nameOf(const QQuickItem& item) {
    QString name = QString::fromLatin1(item.metaObject()->className()).section(u'_', 0, 0);
    for (const char* property : {"text", "name", "objectName"}) {
        const QString said = item.property(property).toString();
        if (!said.isEmpty()) return QStringLiteral("%1 \"%2\"").arg(name, said);
    }
    const QQuickItem* parent = item.parentItem();
    return parent == nullptr ? name : QStringLiteral("%1 in %2").arg(name, nameOf(*parent));
}

std::optional<QString> faultOf(const Place& now, const Place& other) {
    const double wanted = other.frame.width - other.left - other.width;
    if (std::abs(now.width - other.width) > tolerance)
        return QStringLiteral("is %1 wide, not %2").arg(now.width).arg(other.width);
    if (std::abs(now.left - wanted) > tolerance) return QStringLiteral("is at %1, not at %2").arg(now.left).arg(wanted);
    if (now.alignment != mirrored(other.alignment)) return QStringLiteral("has a text at the wrong side");
    return std::nullopt;
}

}  // namespace

void MirrorCheck::look(QQuickWindow& window, const QString& picture) {
    const Places fromLeft = placesIn(window, Qt::LeftToRight);
    const std::unordered_map<const QQuickItem*, Place> others(fromLeft.begin(), fromLeft.end());
    const Places places = placesIn(window, Qt::RightToLeft);
    // As the translation says, which is the same direction.
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    for (const auto& [item, place] : places) {
        const auto other = others.find(item);
        if (other == others.end()) {
            report(nameOf(*item) + QStringLiteral(" is not seen from left to right"), picture);
            continue;
        }
        ++compared_;
        if (const std::optional<QString> fault = faultOf(place, other->second))
            report(nameOf(*item) + u' ' + *fault, picture);
    }
}

void MirrorCheck::report(const QString& finding, const QString& picture) {
    if (reported_.contains(finding)) return;
    reported_.insert(finding);
    findings_.append(QStringLiteral("not mirrored: %1, in %2").arg(finding, picture));
}

}  // namespace zelk::tour
