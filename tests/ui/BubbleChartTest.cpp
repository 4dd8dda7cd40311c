// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "ViewFixture.h"
#include "ui/bubbles/BubbleModel.h"
#include "ui/bubbles/BubblePicture.h"

namespace zelk {

namespace {

BubbleSlice sliceOf(const char* id, std::int64_t bytes) {
    BubbleSlice slice;
    slice.id = id;
    slice.label = QString::fromUtf8(id);
    slice.bytes = bytes;
    slice.color = QColor(124, 92, 255);
    return slice;
}

class BubbleChart : public ViewFixture {
protected:
    BubbleChart() {
        bubbles.setSlices(
            {sliceOf("large", 1'200'000'000), sliceOf("middle", 600'000'000), sliceOf("small", 5'000'000)});
        show(QStringLiteral("Zelk.Bubbles"), QStringLiteral("BubbleChart"), {600, 400});
    }
    void show(const QString& module, const QString& type, QSize size) {
        ViewFixture::show(
            QStringLiteral("import QtQuick\nimport %1\n%2 { name: \"Map\"; focus: true }").arg(module, type), size,
            {{QStringLiteral("model"), QVariant::fromValue(&bubbles)}});
    }
    ~BubbleChart() override { close(); }

    BubblePicture& chart() { return dynamic_cast<BubblePicture&>(view()); }

    std::vector<std::string> told;
    BubbleModel bubbles{{[this](const BubbleSlice& slice) { told.push_back("tap " + slice.id); },
                         [this](const BubbleSlice& slice) { told.push_back("tick " + slice.id); },
                         [this] { told.emplace_back("leave"); }}};
};

}  // namespace

TEST_F(BubbleChart, packsWhenItAppears) {
    ASSERT_EQ(chart().packed().size(), 3U);
    EXPECT_EQ(chart().packed(),
              pack({{"large", 1'200'000'000}, {"middle", 600'000'000}, {"small", 5'000'000}}, 600, 400));
}

}  // namespace zelk
