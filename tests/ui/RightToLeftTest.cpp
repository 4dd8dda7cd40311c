// SPDX-License-Identifier: MIT
// A name that is written from right to left stands where any other does.
#include "LensFixture.h"
#include "ViewFixture.h"

namespace zelk {

namespace {

constexpr const char* hebrewName = "מסמכים";

class RightToLeft : public LensFixtureOn<ViewFixture> {
protected:
    ~RightToLeft() override { close(); }
};

}  // namespace

TEST_F(RightToLeft, namesStayBesideTheirIcons) {
    put(std::string("/") + hebrewName + "/a", 5'000'000);
    put("/music/song.flac", 8'000'000);
    survey();
    show(QStringLiteral("Zelk.App"), QStringLiteral("MapView"), "lens", &lens(), {1046, 800});
    const QQuickItem* hebrew = showing(hebrewName);
    const QQuickItem* english = showing("music");
    ASSERT_NE(hebrew, nullptr);
    ASSERT_NE(english, nullptr);
    EXPECT_EQ(hebrew->mapToScene({}).x(), english->mapToScene({}).x());
    EXPECT_EQ(hebrew->property("effectiveHorizontalAlignment").toInt(), static_cast<int>(Qt::AlignLeft));
    EXPECT_GT(hebrew->width(), hebrew->property("contentWidth").toReal() + 20) << "there is another end to stand at";
    close();
}

TEST_F(RightToLeft, longNamesLoseTheirMiddle) {
    const std::string name = "a very long name " + std::string(80, 'n') + " of a folder";
    put("/" + name + "/a", 5'000'000);
    put("/music/song.flac", 8'000'000);
    survey();
    show(QStringLiteral("Zelk.App"), QStringLiteral("MapView"), "lens", &lens(), {1046, 800});
    const QQuickItem* folder = showing(name.c_str());
    ASSERT_NE(folder, nullptr);
    EXPECT_TRUE(folder->property("truncated").toBool());
    EXPECT_EQ(folder->property("elide").toInt(), static_cast<int>(Qt::ElideMiddle));
    close();
}

}  // namespace zelk
