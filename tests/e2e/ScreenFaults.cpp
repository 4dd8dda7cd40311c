// SPDX-License-Identifier: MIT
#include "ScreenFaults.h"

#include <QAccessible>
#include <QQuickItem>
#include <QRegularExpression>
#include <cmath>

namespace zelk {

namespace {

// Allows for rounding in font metrics.
constexpr qreal tolerance = 1.5;
// Items that are fainter are fading in or out.
constexpr qreal faint = 0.2;

struct ShownItem {
    QQuickItem* item;
    qreal opacity;  ///< including that of its ancestors
    bool tabStop;
};

void collect(QQuickItem& item, qreal opacity, std::vector<ShownItem>& found) {
    if (!item.isVisible()) return;
    const qreal own = opacity * item.opacity();
    if (own < faint) return;
    found.push_back({&item, own, item.activeFocusOnTab() && item.isEnabled()});
    for (QQuickItem* child : item.childItems()) collect(*child, own, found);
}

std::vector<ShownItem> shownItems(QQuickWindow& window) {
    std::vector<ShownItem> found;
    collect(*window.contentItem(), 1, found);
    return found;
}

bool isText(const QQuickItem& item) {
    return item.inherits("QQuickText") || item.inherits("zelk::NumberItem");
}

QString textOf(const QQuickItem& item) {
    return item.property("text").toString();
}

/// Whether the text contains a path or a long name, which no width is certain to fit. Matches all long names in the
/// test data.
bool mayBeShortened(const QString& text) {
    static const QRegularExpression longName(QStringLiteral("/|long long|(.)\\1{9}"));
    return longName.match(text).hasMatch();
}

/// Whether the user can operate the item with the keyboard or the mouse.
bool isControl(const QQuickItem& item) {
    return item.inherits("QQuickAbstractButton") || item.inherits("QQuickMenuItem") || item.inherits("QQuickSlider");
}

/// The rectangle of a rendered text, in window coordinates.
QRectF inkOf(const QQuickItem& item) {
    QRectF ink = item.boundingRect();
    if (item.inherits("QQuickText")) {
        const qreal width = item.property("contentWidth").toReal();
        const qreal height = item.property("contentHeight").toReal();
        const int across = item.property("effectiveHorizontalAlignment").toInt();
        const int down = item.property("verticalAlignment").toInt();
        const qreal left = across & Qt::AlignRight     ? item.width() - width
                           : across & Qt::AlignHCenter ? (item.width() - width) / 2
                                                       : 0;
        const qreal top = down & Qt::AlignBottom    ? item.height() - height
                          : down & Qt::AlignVCenter ? (item.height() - height) / 2
                                                    : item.property("topPadding").toReal();
        ink = QRectF(left, top, width, height);
    }
    return item.mapRectToScene(ink);
}

std::string describe(const QRectF& rect) {
    const auto number = [](qreal value) { return std::to_string(std::lround(value)); };
    return "(" + number(rect.x()) + ", " + number(rect.y()) + ", " + number(rect.width()) + " x " +
           number(rect.height()) + ")";
}

bool encloses(const QRectF& outer, const QRectF& inner, bool across, bool down) {
    const bool fitsAcross = inner.left() >= outer.left() - tolerance && inner.right() <= outer.right() + tolerance;
    const bool fitsDown = inner.top() >= outer.top() - tolerance && inner.bottom() <= outer.bottom() + tolerance;
    return (!across || fitsAcross) && (!down || fitsDown);
}

/// The control or clipping ancestor that the text overflows, or an empty string. Text may be scrolled out of view, so
/// it must fit into a flickable only in directions in which that does not scroll.
std::string overflowedFrame(const QQuickItem& text, const QRectF& ink) {
    for (const QQuickItem* above = text.parentItem(); above != nullptr; above = above->parentItem()) {
        const bool control = above->inherits("QQuickAbstractButton");
        const bool scrolls = above->inherits("QQuickFlickable");
        if (!control && !scrolls && !above->clip()) continue;
        bool across = true;
        bool down = true;
        if (scrolls) {
            across = above->property("contentWidth").toReal() <= above->width() + tolerance;
            down = above->property("contentHeight").toReal() <= above->height() + tolerance;
        }
        const QRectF frame = above->mapRectToScene(above->boundingRect());
        if (!encloses(frame, ink, across, down))
            return std::string(above->metaObject()->className()) + " " + describe(frame);
        if (scrolls) return {};  // the rest depends on the scroll position
    }
    return {};
}

/// The part of a rectangle that the clipping ancestors of the item leave visible.
QRectF visiblePart(const QQuickItem& item, QRectF rect) {
    for (const QQuickItem* above = item.parentItem(); above != nullptr; above = above->parentItem())
        if (above->clip()) rect &= above->mapRectToScene(above->boundingRect());
    return rect;
}

/// The popup that contains the item, or nullptr. A popup covers what is below it on purpose.
const QQuickItem* popupOf(const QQuickItem& item) {
    for (const QQuickItem* above = &item; above != nullptr; above = above->parentItem())
        if (above->inherits("QQuickPopupItem")) return above;
    return nullptr;
}

bool isPartOf(const QQuickItem& item, const QQuickItem& whole) {
    return &item == &whole || whole.isAncestorOf(&item);
}

}  // namespace

std::vector<std::string> layoutFaults(QQuickWindow& window) {
    struct Placed {
        QString text;
        QRectF ink;
        const QQuickItem* item;
        const QQuickItem* popup;
    };
    std::vector<std::string> faults;
    std::vector<Placed> placed;
    const QRectF whole = window.contentItem()->boundingRect();
    for (const ShownItem& shown : shownItems(window)) {
        const QQuickItem& item = *shown.item;
        const QString text = isText(item) ? textOf(item) : QString();
        if (text.isEmpty() || item.width() <= 0) continue;
        const QRectF ink = inkOf(item);
        if (item.property("truncated").toBool() && !mayBeShortened(text))
            faults.push_back("\"" + text.toStdString() + "\" is truncated at " + describe(ink));
        if (const std::string frame = overflowedFrame(item, ink); !frame.empty())
            faults.push_back("\"" + text.toStdString() + "\" " + describe(ink) + " overflows " + frame);
        const QRectF seen = visiblePart(item, ink).intersected(whole);
        if (!seen.isEmpty()) placed.push_back({text, seen, &item, popupOf(item)});
    }
    for (std::size_t one = 0; one < placed.size(); ++one)
        for (std::size_t other = one + 1; other < placed.size(); ++other) {
            if (placed[one].popup != placed[other].popup) continue;
            const QRectF both = placed[one].ink & placed[other].ink;
            if (both.width() > tolerance && both.height() > 2 * tolerance)
                faults.push_back("\"" + placed[one].text.toStdString() + "\" and \"" +
                                 placed[other].text.toStdString() + "\" overlap at " + describe(both));
        }
    for (const ShownItem& shown : shownItems(window)) {
        const QQuickItem& control = *shown.item;
        if (!isControl(control)) continue;
        const QRectF frame = visiblePart(control, control.mapRectToScene(control.boundingRect()));
        for (const Placed& text : placed) {
            const QRectF both = text.ink & frame;
            if (text.popup != popupOf(control) || both.width() <= tolerance || both.height() <= 2 * tolerance) continue;
            if (isPartOf(*text.item, control) || isPartOf(control, *text.item->parentItem())) continue;
            faults.push_back("\"" + text.text.toStdString() + "\" overlaps " + control.metaObject()->className() + " " +
                             describe(frame));
        }
    }
    return faults;
}

std::vector<std::string> accessibilityFaults(QQuickWindow& window) {
    std::vector<std::string> faults;
    for (const ShownItem& shown : shownItems(window)) {
        if (!shown.tabStop && !(shown.item->isEnabled() && isControl(*shown.item))) continue;
        QAccessibleInterface* control = QAccessible::queryAccessibleInterface(shown.item);
        const std::string place = std::string(shown.item->metaObject()->className()) + " " +
                                  describe(shown.item->mapRectToScene(shown.item->boundingRect()));
        if (control == nullptr) {
            faults.push_back(place + " has no accessible interface");
            continue;
        }
        if (control->text(QAccessible::Name).isEmpty()) faults.push_back(place + " has no name");
        if (control->role() == QAccessible::NoRole || control->role() == QAccessible::Client)
            faults.push_back(place + " has no role");
        if (shown.item->width() < 1 || shown.item->height() < 1) faults.push_back(place + " has no size");
    }
    return faults;
}

std::vector<std::string> ringFaults(QQuickWindow& window) {
    std::vector<std::string> faults;
    const QRectF whole = window.contentItem()->boundingRect();
    for (const ShownItem& shown : shownItems(window)) {
        const QQuickItem& item = *shown.item;
        if (!QString::fromLatin1(item.metaObject()->className()).startsWith(QStringLiteral("FocusRing"))) continue;
        const QRectF ring = item.mapRectToScene(item.boundingRect());
        if (!encloses(visiblePart(item, ring) & whole, ring, true, true))
            faults.push_back("the focus ring " + describe(ring) + " of \"" +
                             textOf(*window.activeFocusItem()).toStdString() + "\" is clipped to " +
                             describe(visiblePart(item, ring) & whole));
    }
    return faults;
}

std::vector<std::string> focusableNames(QQuickWindow& window) {
    std::vector<std::string> names;
    for (const ShownItem& shown : shownItems(window)) {
        if (!shown.tabStop) continue;
        QAccessibleInterface* control = QAccessible::queryAccessibleInterface(shown.item);
        names.push_back(control == nullptr ? std::string() : control->text(QAccessible::Name).toStdString());
    }
    return names;
}

}  // namespace zelk
