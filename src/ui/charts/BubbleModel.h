// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <functional>
#include <vector>

#include "ui/charts/BubbleSlice.h"

namespace zelk {

/// What a screen gives to its bubble map, and what the map does when a bubble is acted on. A slice that is handed to an
/// action is one of slices(). Main thread.
class BubbleModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by a screen")

public:
    struct Actions {
        std::function<void(const BubbleSlice&)> tap;   ///< a click, or Enter
        std::function<void(const BubbleSlice&)> tick;  ///< the space bar; without it, a tap
        std::function<void()> leave;                   ///< Backspace: to what this map is a part of
    };

    explicit BubbleModel(Actions actions, QObject* parent = nullptr);

    const std::vector<BubbleSlice>& slices() const { return slices_; }
    /// The largest first, for the middle of the map.
    void setSlices(std::vector<BubbleSlice> slices);
    /// The map forgets where its bubbles lay, as a new one would.
    void rebuild() { emit rebuilt(); }

    void tap(const BubbleSlice& slice) const;
    void tick(const BubbleSlice& slice) const;
    void leave() const;

signals:
    void slicesChanged();
    void rebuilt();

private:
    Actions actions_;
    std::vector<BubbleSlice> slices_;
};

}  // namespace zelk
