// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QImage>
#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zelk {

/// A weighted item of a bubble map, identified by `id`.
struct BubbleSlice {
    std::string id;            ///< stable across updates: a path in bytes, or a name chosen by the caller
    QString label;             ///< display text
    std::int64_t bytes = 0;    ///< the weight; not shown unless positive
    QColor color;              ///< if invalid, the bubble has the theme's colour of secondary text
    bool reclaimable = false;  ///< mentioned in the tip
    QImage icon;               ///< icon of a file; may be null
    bool selected = false;     ///< drawn with a white ring

    bool operator==(const BubbleSlice&) const = default;
};

/// The slices of a bubble map and the actions on its bubbles. Actions receive a slice of slices(). Main thread.
class BubbleModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by a screen")

public:
    struct Actions {
        std::function<void(const BubbleSlice&)> tap;   ///< a click, or Enter
        std::function<void(const BubbleSlice&)> tick;  ///< the space bar; falls back to `tap`
        std::function<void()> leave;                   ///< Backspace: goes to the parent map
    };

    explicit BubbleModel(Actions actions, QObject* parent = nullptr) : QObject(parent), actions_(std::move(actions)) {}

    const std::vector<BubbleSlice>& slices() const { return slices_; }
    /// Order by size, descending, to place the largest in the middle.
    void setSlices(std::vector<BubbleSlice> slices) {
        if (slices == slices_) return;
        slices_ = std::move(slices);
        emit slicesChanged();
    }
    /// Makes the map lay out all bubbles anew, as if it had just appeared.
    void rebuild() { emit rebuilt(); }

    // The actions get a copy, since they may replace slices().
    void tap(const BubbleSlice& slice) const {
        if (actions_.tap) actions_.tap(BubbleSlice(slice));
    }
    void tick(const BubbleSlice& slice) const {
        if (actions_.tick)
            actions_.tick(BubbleSlice(slice));
        else
            tap(slice);
    }
    void leave() const {
        if (actions_.leave) actions_.leave();
    }

signals:
    void slicesChanged();
    void rebuilt();

private:
    Actions actions_;
    std::vector<BubbleSlice> slices_;
};

}  // namespace zelk
