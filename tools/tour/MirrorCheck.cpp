// SPDX-License-Identifier: MIT
#include "MirrorCheck.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <vector>

namespace zelk::tour {

namespace {

// What is in the middle of something is moved to whole points, and that may be in the middle of something too.
constexpr double tolerance = 2;

/// Where a side is what is mirrored: the window, or a menu in it.
struct Frame {
    double left;
    double width;
};

struct Place {
    QString way;   ///< from the window to the item: the number of each item on it among its siblings
    QString name;  ///< what a person would call it, and what stands around it
    double left;   ///< in its frame
    double width;
    Frame frame;
    Qt::Alignment alignment;  ///< of the text in it; none where that makes no difference, and for other items
};

bool isTypeOf(const QQuickItem& item, const char* name) {
    return QString::fromLatin1(item.metaObject()->className()).startsWith(QLatin1String(name) + u'_');
}

bool staysAsItIs(const QQuickItem& item) {
    return item.inherits("zelk::BubblePicture");
}

bool isMenu(const QQuickItem& item) {
    return item.inherits("QQuickPopupItem") && item.parent() != nullptr && item.parent()->inherits("QQuickMenu");
}

/// The list whose rows these are, or nullptr.
const QQuickItem* listOfRows(const QQuickItem& rows) {
    const QQuickItem* list = rows.parentItem();
    const bool found = list != nullptr && list->inherits("QQuickListView") &&
                       list->property("contentItem").value<QQuickItem*>() == &rows;
    return found ? list : nullptr;
}

/// The rows in sight from above. A list makes its rows anew when it is mirrored, keeps old ones for later, and others
/// beyond its ends. What marks the current row is moved with delay.
QList<QQuickItem*> rowsInSight(const QQuickItem& rows, const QQuickItem& list) {
    const QRectF sight = list.mapRectToItem(&rows, QRectF(0, 0, list.width(), list.height()));
    const auto* highlight = list.property("highlightItem").value<QQuickItem*>();
    QList<QQuickItem*> found;
    for (QQuickItem* row : rows.childItems())
        if (row != highlight && row->isVisible() && row->y() < sight.bottom() && row->y() + row->height() > sight.top())
            found.append(row);
    std::stable_sort(found.begin(), found.end(),
                     [](const QQuickItem* one, const QQuickItem* other) { return one->y() < other->y(); });
    return found;
}

/// Whether the text is one line without room at its sides.
bool fillsItsPlace(const QQuickItem& item) {
    const double paddings = item.property("leftPadding").toDouble() + item.property("rightPadding").toDouble();
    const double room = item.width() - paddings - item.property("contentWidth").toDouble();
    return item.property("lineCount").toInt() <= 1 && room <= tolerance;
}

Qt::Alignment alignmentOf(const QQuickItem& item) {
    if (isTypeOf(item, "PrintedText") || fillsItsPlace(item)) return {};
    return Qt::Alignment(item.property("effectiveHorizontalAlignment").toInt());
}

Qt::Alignment mirrored(Qt::Alignment alignment) {
    if (alignment == Qt::AlignLeft) return Qt::AlignRight;
    return alignment == Qt::AlignRight ? Qt::Alignment(Qt::AlignLeft) : alignment;
}

QString nameOf(const QQuickItem& item) {
    QString name = QString::fromLatin1(item.metaObject()->className()).section(u'_', 0, 0);
    for (const char* property : {"text", "name", "objectName"}) {
        const QString said = item.property(property).toString();
        if (!said.isEmpty()) return QStringLiteral("%1 \"%2\"").arg(name, said);
    }
    const QQuickItem* parent = item.parentItem();
    return parent == nullptr ? name : QStringLiteral("%1 in %2").arg(name, nameOf(*parent));
}

void gather(const QQuickItem& item, Frame frame, const QString& way, std::vector<Place>& places) {
    if (!item.isVisible() || item.opacity() == 0 || staysAsItIs(item)) return;
    const QRectF box = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    if (isMenu(item))
        frame = {box.left(), box.width()};
    else if (item.flags().testFlag(QQuickItem::ItemHasContents) || item.inherits("QQuickControl"))
        places.push_back({way, nameOf(item), box.left() - frame.left, box.width(), frame, alignmentOf(item)});
    const QQuickItem* list = listOfRows(item);
    const QList<QQuickItem*> children = list == nullptr ? item.childItems() : rowsInSight(item, *list);
    for (qsizetype number = 0; number < children.size(); ++number)
        gather(*children[number], frame, QStringLiteral("%1/%2").arg(way).arg(number), places);
}

std::vector<Place> placesIn(const QQuickWindow& window) {
    std::vector<Place> places;
    gather(*window.contentItem(), {0, static_cast<double>(window.width())}, {}, places);
    return places;
}

/// How far lists are scrolled: they go back to their beginning when they are mirrored.
class Scrolled {
public:
    explicit Scrolled(const QQuickItem& item) { note(item); }

    void putBack() const {
        for (const List& list : lists_) {
            const int atTop = 0;  // ListView.Beginning
            QMetaObject::invokeMethod(list.view, "positionViewAtIndex", Q_ARG(int, list.row), Q_ARG(int, atTop));
            list.view->setProperty("contentY", heightOf(*list.view, list.row) + list.below);
        }
    }

private:
    struct List {
        QQuickItem* view;
        int row;       ///< at the top; -1 above the first one
        double below;  ///< how far the top is below that of the row
    };

    void note(const QQuickItem& item) {
        for (QQuickItem* child : item.childItems()) {
            if (child->inherits("QQuickListView") && !child->property("atYBeginning").toBool()) noteList(*child);
            note(*child);
        }
    }

    void noteList(QQuickItem& list) {
        const double top = list.property("contentY").toDouble();
        int row = -1;
        QMetaObject::invokeMethod(&list, "indexAt", Q_RETURN_ARG(int, row), Q_ARG(qreal, list.width() / 2),
                                  Q_ARG(qreal, top));
        lists_.push_back({&list, row, top - heightOf(list, row)});
    }

    /// Where the row begins, or the first one does.
    static double heightOf(QQuickItem& list, int row) {
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(&list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, row));
        return item == nullptr ? list.property("originY").toDouble() : item->y();
    }

    std::vector<List> lists_;
};

void layOut(QQuickItem& item) {
    item.ensurePolished();
    for (QQuickItem* child : item.childItems()) layOut(*child);
}

void turn(QQuickWindow& window, Qt::LayoutDirection direction, const Scrolled& scrolled) {
    QGuiApplication::setLayoutDirection(direction);
    // What is placed may move what others depend on, so once is not enough. A frame would do the same, but paint too.
    for (int round = 0; round < 3; ++round) {
        scrolled.putBack();
        layOut(*window.contentItem());
    }
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
    const Scrolled scrolled(*window.contentItem());
    const std::vector<Place> places = placesIn(window);
    turn(window, Qt::LeftToRight, scrolled);
    std::unordered_map<QString, Place> others;
    for (Place& other : placesIn(window)) others.emplace(other.way, std::move(other));
    // As the translation says.
    turn(window, Qt::LayoutDirectionAuto, scrolled);
    for (const Place& place : places) {
        const auto other = others.find(place.way);
        if (other == others.end()) {
            report(place.name + QStringLiteral(" is not seen from left to right"), picture);
            continue;
        }
        ++compared_;
        if (const std::optional<QString> fault = faultOf(place, other->second))
            report(place.name + u' ' + *fault, picture);
        others.erase(other);
    }
    for (const auto& [way, other] : others)
        report(other.name + QStringLiteral(" is seen from left to right only"), picture);
}

void MirrorCheck::report(const QString& finding, const QString& picture) {
    if (reported_.contains(finding)) return;
    reported_.insert(finding);
    findings_.append(QStringLiteral("not mirrored: %1, in %2").arg(finding, picture));
}

}  // namespace zelk::tour
