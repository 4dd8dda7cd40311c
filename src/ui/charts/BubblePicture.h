// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractItemModel>
#include <QColor>
#include <QPointF>
#include <QPointer>
#include <QSizeF>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "ui/charts/BubbleModel.h"
#include "ui/charts/BubbleNodes.h"
#include "ui/charts/CirclePacking.h"
#include "ui/controls/Drawn.h"

namespace zelk {

/// The contents and position of the tool tip of a bubble.
struct BubbleTip {
    Q_GADGET
    QML_VALUE_TYPE(bubbleTip)
    Q_PROPERTY(bool shown MEMBER shown CONSTANT FINAL)
    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)
    Q_PROPERTY(QString line MEMBER line CONSTANT FINAL)
    Q_PROPERTY(bool reclaimable MEMBER reclaimable CONSTANT FINAL)
    Q_PROPERTY(QPointF corner MEMBER corner CONSTANT FINAL)
    Q_PROPERTY(double widest MEMBER widest CONSTANT FINAL)

public:
    bool shown = false;  ///< the other fields are valid only if set
    QString label;
    QString line;  ///< the size, and whether it is reclaimable
    bool reclaimable = false;
    QPointF corner;  ///< top left corner, in the chart's points; top right, from the right, where reading begins there
    double widest = 0;  ///< maximum width there

    /// The tip at `point` in a chart of size `chart`, with texts scaled by `textScale`.
    static BubbleTip of(const BubbleSlice& slice, QPointF point, QSizeF chart, double textScale);

    bool operator==(const BubbleTip&) const = default;
};

/// Where a map begins to move when the user goes into a bubble or comes back from it: scaled by `scale` around
/// `origin`. It ends unscaled.
struct BubbleZoom {
    Q_GADGET
    QML_VALUE_TYPE(bubbleZoom)
    Q_PROPERTY(double scale MEMBER scale CONSTANT FINAL)
    Q_PROPERTY(QPointF origin MEMBER origin CONSTANT FINAL)

public:
    double scale = 1;
    QPointF origin;  ///< in the chart's points

    /// The map of what is inside the circle at `centre`: it grows out of the circle until it fills a map of this size.
    static BubbleZoom into(QPointF centre, double radius, QSizeF map);
    /// The map that contains the circle: it shrinks from where the circle filled it.
    static BubbleZoom outOf(QPointF centre, double radius, QSizeF map);

    bool operator==(const BubbleZoom&) const = default;
};

/// The bubble map of a BubbleModel: lays out and paints the slices and handles the pointer and the keys. Used by
/// BubbleChart.
///
/// The layout changes only when the map appears or is resized, the ids of the slices change, or the model is rebuilt;
/// new bytes or colours keep it. One bubble is current: the arrow keys go to the next one in their direction, Home and
/// End to the largest and smallest; Enter taps it, the space bar ticks it, Backspace leaves the map. A click makes the
/// bubble below the pointer current.
class BubblePicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(zelk::BubbleModel* model READ model WRITE setModel NOTIFY modelChanged FINAL REQUIRED)
    Q_PROPERTY(bool dark MEMBER dark_ NOTIFY changed FINAL)
    // The colours of the focus ring and of its outline.
    Q_PROPERTY(QColor ring MEMBER ring_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor ground MEMBER ground_ NOTIFY changed FINAL)
    Q_PROPERTY(double textScale MEMBER textScale_ NOTIFY changed FINAL)
    Q_PROPERTY(bool visualFocus READ visualFocus NOTIFY visualFocusChanged FINAL)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY packedChanged FINAL)
    Q_PROPERTY(QString currentName READ currentName NOTIFY currentChanged FINAL)
    Q_PROPERTY(zelk::BubbleTip tip READ tip NOTIFY tipChanged FINAL)
    Q_PROPERTY(QAbstractItemModel* nodes READ nodes CONSTANT FINAL)

public:
    explicit BubblePicture(QQuickItem* parent = nullptr);

    BubbleModel* model() const { return model_; }
    void setModel(BubbleModel* model);

    const std::vector<PackedCircle>& packed() const { return packed_; }
    bool isEmpty() const { return packed_.empty(); }
    const std::optional<std::string>& hoveredID() const { return hoveredID_; }
    /// The last position of the pointer, in the chart's points.
    QPointF hoverPoint() const { return hoverPoint_; }
    /// Whether the map has the focus and was last used by the keyboard.
    bool visualFocus() const { return byKey_ && hasActiveFocus(); }
    /// The index of the current bubble in packed().
    const std::optional<std::size_t>& current() const { return current_; }
    /// The accessible name of the current bubble; empty if there is none.
    QString currentName() const;
    /// The tip of the bubble below the pointer, or of the current one while the keyboard is used.
    const BubbleTip& tip() const { return tip_; }
    QAbstractItemModel* nodes() { return &nodes_; }

    /// The motions into the bubble of this slice and back. Without a bubble for it the scale is 1.
    Q_INVOKABLE zelk::BubbleZoom zoomInto(int slice) const;
    Q_INVOKABLE zelk::BubbleZoom zoomOutOf(int slice) const;

    /// Taps the bubble with this index in packed(), for screen readers.
    Q_INVOKABLE void tapNode(int index);

signals:
    void modelChanged();
    void visualFocusChanged();
    void packedChanged();
    void currentChanged();
    void tipChanged();

protected:
    void draw(QPainter& painter) override;
    void componentComplete() override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    const std::vector<BubbleSlice>& slices() const;
    const BubbleSlice* sliceAt(std::size_t index) const;
    const BubbleSlice* currentSlice() const;

    void takeSlices();
    void startOver();
    void repack();
    void refresh();
    void hover(QPointF point);
    void setByKey(bool byKey);
    void setCurrent(std::optional<std::size_t> current);
    bool act(int key, bool repeated);
    void retip();
    void updateBubble(const std::optional<std::size_t>& index);
    BubbleZoom zoom(int slice, BubbleZoom (*zoomOf)(QPointF, double, QSizeF)) const;
    std::optional<std::size_t> indexOf(const std::optional<std::string>& id) const;

    QPointer<BubbleModel> model_;
    bool dark_ = true;
    double textScale_ = 1;
    QColor ring_;
    QColor ground_;
    std::vector<PackedCircle> packed_;
    ShownSlices shown_;  // slices by index in packed_
    BubbleTexts texts_;  // kept with the map, since most texts recur in every frame
    std::string key_;    // identifies the ids of the slices
    std::optional<std::string> hoveredID_;
    QPointF hoverPoint_;
    std::optional<QPointF> pressed_;
    std::optional<std::size_t> current_;
    bool byKey_ = false;
    bool tipFollowsKeys_ = false;  // until the pointer moves
    BubbleTip tip_;
    BubbleNodes nodes_;
};

}  // namespace zelk
