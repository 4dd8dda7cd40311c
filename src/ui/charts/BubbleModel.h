// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <functional>
#include <vector>

#include "ui/charts/BubbleSlice.h"

namespace zelk {

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

    explicit BubbleModel(Actions actions, QObject* parent = nullptr);

    const std::vector<BubbleSlice>& slices() const { return slices_; }
    /// Order by size, descending, to place the largest in the middle.
    void setSlices(std::vector<BubbleSlice> slices);
    /// Makes the map lay out all bubbles anew, as if it had just appeared.
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
