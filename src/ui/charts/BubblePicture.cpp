// SPDX-License-Identifier: MIT
#include "ui/charts/BubblePicture.h"

#include <QCursor>
#include <QGuiApplication>
#include <QStyleHints>
#include <algorithm>
#include <utility>

#include "ui/theme/DisplayText.h"
#include "ui/theme/ReadingDirection.h"

namespace zelk {

namespace {

std::string keyOf(const std::vector<BubbleSlice>& slices) {
    std::string key;
    for (const BubbleSlice& slice : slices) {
        if (&slice != &slices.front()) key += '|';
        key += slice.id;
    }
    return key;
}

/// Scaling by s around the origin o moves a point p to o + s (p - o). Solved for the o that moves `from` to `to`.
QPointF originThatMoves(QPointF from, QPointF to, double scale) {
    return (to - scale * from) / (1 - scale);
}

}  // namespace

BubbleTip BubbleTip::of(const BubbleSlice& slice, QPointF point, QSizeF chart, double textScale) {
    constexpr double offset = 12;     // from the pointer
    constexpr double roomWide = 220;  // reserved between the tip and the edge
    constexpr double roomHigh = 56;   // reserved below
    const double width = roomWide * textScale;
    const double across = readsFromRight() ? chart.width() - point.x() : point.x();
    BubbleTip tip;
    tip.shown = true;
    tip.label = slice.label;
    tip.line = byteFigure(slice.bytes);
    if (slice.reclaimable) tip.line = BubblePicture::tr("%1 · reclaimable").arg(tip.line);
    tip.reclaimable = slice.reclaimable;
    tip.corner = {std::min(across + offset, std::max(chart.width() - width, 0.0)),
                  std::min(point.y() + offset, std::max(chart.height() - roomHigh * textScale, 0.0))};
    tip.widest = std::min(std::max(chart.width() - tip.corner.x(), width), chart.width());
    return tip;
}

BubbleZoom BubbleZoom::into(QPointF centre, double radius, QSizeF map) {
    const double scale = 2 * radius / std::min(map.width(), map.height());
    if (!(scale > 0 && scale < 1)) return {};
    return {scale, originThatMoves({map.width() / 2, map.height() / 2}, centre, scale)};
}

BubbleZoom BubbleZoom::outOf(QPointF centre, double radius, QSizeF map) {
    constexpr double greatest = 6;  // beyond it the map is only a blur
    if (!(radius > 0)) return {};
    const double scale = std::min(std::min(map.width(), map.height()) / (2 * radius), greatest);
    if (!(scale > 1)) return {};
    return {scale, originThatMoves(centre, {map.width() / 2, map.height() / 2}, scale)};
}

BubblePicture::BubblePicture(QQuickItem* parent) : Drawn(parent) {
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setActiveFocusOnTab(true);
    connect(this, &Drawn::changed, this, &BubblePicture::retip);
}

void BubblePicture::setModel(BubbleModel* model) {
    if (model == model_) return;
    if (model_ != nullptr) disconnect(model_, nullptr, this, nullptr);
    model_ = model;
    if (model != nullptr) {
        connect(model, &BubbleModel::slicesChanged, this, &BubblePicture::takeSlices);
        connect(model, &BubbleModel::rebuilt, this, &BubblePicture::startOver);
        connect(model, &QObject::destroyed, this, &BubblePicture::refresh);
    }
    startOver();
    emit modelChanged();
}

const std::vector<BubbleSlice>& BubblePicture::slices() const {
    static const std::vector<BubbleSlice> none;
    return model_ == nullptr ? none : model_->slices();
}

const BubbleSlice* BubblePicture::sliceAt(std::size_t index) const {
    return model_ == nullptr ? nullptr : shown_.at(index);
}

const BubbleSlice* BubblePicture::currentSlice() const {
    return current_ ? sliceAt(*current_) : nullptr;
}

QString BubblePicture::currentName() const {
    return current_ ? nodes_.data(nodes_.index(static_cast<int>(*current_)), BubbleNodes::nameRole).toString()
                    : QString();
}

void BubblePicture::takeSlices() {
    if (keyOf(slices()) == key_)
        refresh();
    else
        repack();
}

void BubblePicture::startOver() {
    packed_.clear();
    current_.reset();
    hoveredID_.reset();
    hoverPoint_ = {};
    repack();
}

void BubblePicture::repack() {
    key_ = keyOf(slices());
    if (isComponentComplete() && width() > 1 && height() > 1) {
        std::vector<PackItem> items;
        for (const BubbleSlice& slice : slices()) items.push_back({slice.id, slice.bytes});
        const std::optional<std::string> was = current_ ? std::optional(packed_[*current_].id) : std::nullopt;
        packed_ = pack(items, width(), height());
        current_ = indexOf(was);
        if (!current_) current_ = largestCircle(packed_);
    }
    refresh();
    emit packedChanged();
}

/// Updates everything that derives from slices(), packed_ and the focus.
void BubblePicture::refresh() {
    shown_ = slicesOf(packed_, slices());
    nodes_.show(bubbleNodes(packed_, shown_));
    nodes_.setCurrent(visualFocus() ? current_ : std::nullopt);
    retip();
    update();
    emit currentChanged();
}

std::optional<std::size_t> BubblePicture::indexOf(const std::optional<std::string>& id) const {
    const auto found =
        std::find_if(packed_.begin(), packed_.end(), [&](const PackedCircle& circle) { return circle.id == id; });
    if (found == packed_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - packed_.begin());
}

BubbleZoom BubblePicture::zoom(int slice, BubbleZoom (*zoomOf)(QPointF, double, QSizeF)) const {
    if (slice < 0 || slice >= static_cast<int>(slices().size())) return {};
    const std::optional<std::size_t> index = indexOf(slices()[static_cast<std::size_t>(slice)].id);
    if (!index) return {};
    const PackedCircle& circle = packed_[*index];
    return zoomOf({circle.center.x, circle.center.y}, circle.radius, size());
}

BubbleZoom BubblePicture::zoomInto(int slice) const {
    return zoom(slice, BubbleZoom::into);
}

BubbleZoom BubblePicture::zoomOutOf(int slice) const {
    return zoom(slice, BubbleZoom::outOf);
}

/// Repaints one bubble and its surroundings, instead of the whole map.
void BubblePicture::updateBubble(const std::optional<std::size_t>& index) {
    if (index) update(bubbleBox(packed_[*index]).toAlignedRect());
}

void BubblePicture::draw(QPainter& painter) {
    drawBubbles(painter, packed_, shown_, hoveredID_, {dark_, textScale_}, texts_);
    if (visualFocus() && currentSlice() != nullptr) drawBubbleFocus(painter, packed_[*current_], ring_, ground_);
}

void BubblePicture::componentComplete() {
    Drawn::componentComplete();
    repack();
}

void BubblePicture::geometryChange(const QRectF& now, const QRectF& before) {
    Drawn::geometryChange(now, before);
    if (now.size() != before.size()) repack();
}

void BubblePicture::hover(QPointF point) {
    // Qt also sends hover events when items move below a resting pointer.
    if (point != std::exchange(hoverPoint_, point)) tipFollowsKeys_ = false;
    const auto hit = hitTest(packed_, {point.x(), point.y()});
    const std::optional<std::string> id = hit ? std::optional(packed_[*hit].id) : std::nullopt;
    if (id != hoveredID_) {
        updateBubble(indexOf(hoveredID_));
        updateBubble(indexOf(id));
        hoveredID_ = id;
        setCursor(id ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
    retip();
}

void BubblePicture::hoverEnterEvent(QHoverEvent* event) {
    hover(event->position());
}

void BubblePicture::hoverMoveEvent(QHoverEvent* event) {
    hover(event->position());
}

void BubblePicture::hoverLeaveEvent(QHoverEvent* /*event*/) {
    updateBubble(indexOf(hoveredID_));
    hoveredID_.reset();
    retip();
}

void BubblePicture::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->position();
    setByKey(false);
    forceActiveFocus(Qt::MouseFocusReason);
}

/// A drag is not a tap.
void BubblePicture::mouseMoveEvent(QMouseEvent* event) {
    if (!pressed_) return;
    const QPointF moved = event->position() - *pressed_;
    if (moved.manhattanLength() >= QGuiApplication::styleHints()->startDragDistance()) pressed_.reset();
}

void BubblePicture::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(pressed_, std::nullopt)) return;
    const QPointF point = event->position();
    if (const auto hit = hitTest(packed_, {point.x(), point.y()})) {
        setCurrent(hit);
        tapNode(static_cast<int>(*hit));
    }
}

void BubblePicture::mouseUngrabEvent() {
    pressed_.reset();
}

void BubblePicture::tapNode(int index) {
    const auto at = static_cast<std::size_t>(index);
    if (index < 0 || at >= packed_.size()) return;
    if (const BubbleSlice* slice = sliceAt(at)) model_->tap(*slice);
}

void BubblePicture::setByKey(bool byKey) {
    tipFollowsKeys_ = byKey;
    const bool changed = byKey != std::exchange(byKey_, byKey) && hasActiveFocus();
    if (changed) {
        updateBubble(current_);
        nodes_.setCurrent(visualFocus() ? current_ : std::nullopt);
        emit visualFocusChanged();
    }
    retip();
}

void BubblePicture::setCurrent(std::optional<std::size_t> current) {
    if (current == current_) return;
    updateBubble(std::exchange(current_, current));
    updateBubble(current_);
    nodes_.setCurrent(visualFocus() ? current_ : std::nullopt);
    retip();
    emit currentChanged();
}

/// Returns false for keys that the map does not handle.
bool BubblePicture::act(int key, bool repeated) {
    const BubbleSlice* slice = currentSlice();
    const auto walk = [&](WalkDirection direction) {
        const auto next = current_ ? nextInDirection(packed_, *current_, direction) : std::nullopt;
        if (next) setCurrent(next);
        return true;
    };
    switch (key) {
        case Qt::Key_Left:
            return walk(WalkDirection::left);
        case Qt::Key_Right:
            return walk(WalkDirection::right);
        case Qt::Key_Up:
            return walk(WalkDirection::up);
        case Qt::Key_Down:
            return walk(WalkDirection::down);
        case Qt::Key_Home:
            setCurrent(largestCircle(packed_));
            return true;
        case Qt::Key_End:
            setCurrent(smallestCircle(packed_));
            return true;
        // Auto-repeat is swallowed, so that a held key acts once.
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (slice != nullptr && !repeated) model_->tap(*slice);
            return true;
        case Qt::Key_Space:
            if (slice != nullptr && !repeated) model_->tick(*slice);
            return true;
        case Qt::Key_Backspace:
            if (model_ != nullptr && !repeated) model_->leave();
            return true;
        default:
            return false;
    }
}

void BubblePicture::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool ours = plain && act(event->key(), event->isAutoRepeat());
    if (ours) setByKey(true);
    event->setAccepted(ours);
}

void BubblePicture::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    const bool kept = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    if (!kept)
        byKey_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    tipFollowsKeys_ = byKey_;
    Drawn::focusInEvent(event);
    refresh();
    emit visualFocusChanged();
}

void BubblePicture::focusOutEvent(QFocusEvent* event) {
    Drawn::focusOutEvent(event);
    refresh();
    emit visualFocusChanged();
}

void BubblePicture::retip() {
    const bool atKeys = visualFocus() && tipFollowsKeys_ && current_;
    const std::optional<std::size_t> index = atKeys ? current_ : indexOf(hoveredID_);
    const BubbleSlice* slice = index ? sliceAt(*index) : nullptr;
    BubbleTip tip;
    if (slice != nullptr) {
        const PackedPoint middle = packed_[*index].center;
        tip = BubbleTip::of(*slice, atKeys ? QPointF(middle.x, middle.y) : hoverPoint_, size(), textScale_);
    }
    if (std::exchange(tip_, tip) != tip) emit tipChanged();
}

}  // namespace zelk

#include "moc_BubblePicture.cpp"
