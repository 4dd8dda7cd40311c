// SPDX-License-Identifier: MIT
// The banner on the screen: when it asks what the Trash holds.
#include "ViewFixture.h"
#include "ui/screens/overview/TrashBannerModel.h"

namespace zelk {

namespace {

class TrashBannerWindow : public ViewFixture {
protected:
    ~TrashBannerWindow() override { close(); }

    /// Measurings wait from now on, so that they can be counted.
    std::size_t measurings() const { return machine.tasks.waiting().size(); }
    void open() {
        machine.tasks.hold();
        show(QStringLiteral("Zelk.App"), QStringLiteral("TrashBanner"), "trash", &banner, {640, 80});
    }

    TrashBannerModel banner{model(), true};
};

}  // namespace

TEST_F(TrashBannerWindow, readsTheTrashOnceWhenItIsBuiltInSight) {
    open();
    EXPECT_EQ(measurings(), 1U);
    machine.tasks.release();
}

TEST_F(TrashBannerWindow, readsItAgainWheneverItComesBack) {
    open();
    view().setVisible(false);
    EXPECT_EQ(measurings(), 1U);
    view().setVisible(true);
    EXPECT_EQ(measurings(), 2U);
    machine.tasks.release();
}

TEST_F(TrashBannerWindow, hasItsSymbolBeforeItsTexts) {
    show(QStringLiteral("Zelk.App"), QStringLiteral("TrashBanner"), "trash", &banner, {640, 80});
    const SymbolItem* trash = symbol("trash.fill");
    ASSERT_NE(trash, nullptr);
    ASSERT_NE(showing("Trash"), nullptr);
    EXPECT_LT(trash->mapToScene({}).x() + trash->width(), showing("Trash")->mapToScene({}).x());
}

}  // namespace zelk
